// Abbreviation of labels by measuring candidate texts.
#include "piechart/PieLabelAbbreviation.h"

#include <algorithm>

#include "gdi/Text.h"

namespace kavlix {
namespace {

constexpr char kDots[] = "...";
constexpr int kLeastCharacters = 2; // least number before the dots of an abbreviation worth reading

/// The number of bytes at the beginning of `a` that `b` begins with too, without cutting a character.
int CommonBytes(const CString& a, const CString& b) {
    int bytes = 0;
    while (bytes < std::min(a.GetLength(), b.GetLength()) && a[bytes] == b[bytes])
        ++bytes;
    return WholeCharacters(a, a.GetLength(), bytes);
}

/// The first `bytes` bytes of the label without blanks at their end, dots, and `tail`.
CString Cut(const CString& label, int bytes, const CString& tail) {
    CString cut = label.Left(bytes);
    cut.TrimRight();
    return cut + kDots + tail;
}

/// The most bytes of the label's beginning with which Cut() stays within `width`; 0 when no character fits.
int FittingBytes(const CDC& dc, const CString& label, const CString& tail, int width) {
    // A code point has at most 4 bytes, and counts as at least one logical unit wide.
    constexpr int kMostBytesPerUnit = 4;
    return kavlix::FittingBytes(label, kMostBytesPerUnit * width, [&](int bytes) {
        return MeasureText(dc, Cut(label, bytes, tail)).cx <= width;
    });
}

} // namespace

std::vector<SharedBeginning> FindSharedBeginnings(const std::vector<CString>& labels) {
    // In sorted order, the label with the longest common beginning is a neighbour.
    std::vector<CString> sorted = labels;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    std::vector<SharedBeginning> found;
    for (const CString& label : labels) {
        const auto at = std::lower_bound(sorted.begin(), sorted.end(), label);
        SharedBeginning each;
        if (at != sorted.begin())
            each.length = CommonBytes(label, *(at - 1));
        if (at + 1 != sorted.end())
            each.length = std::max(each.length, CommonBytes(label, *(at + 1)));
        const int blank = label.Left(each.length).ReverseFind(' ');
        each.lastWord = blank >= 0 ? blank + 1 : each.length;
        found.push_back(each);
    }
    return found;
}

CString AbbreviateLabel(const CDC& dc, const CString& label, const SharedBeginning& shared, int width) {
    if (MeasureText(dc, label).cx <= width)
        return label;
    const int bytes = FittingBytes(dc, label, CString(), width);
    if (bytes > shared.length)
        return Cut(label, bytes, CString());
    const CString tail = label.Mid(shared.lastWord);
    const int before = tail.IsEmpty() ? 0 : std::min(FittingBytes(dc, label, tail, width), shared.lastWord);
    return before > 0 ? Cut(label, before, tail) : CString();
}

int NarrowestLabel(const CDC& dc, const CString& label, const SharedBeginning& shared) {
    const int length = label.GetLength();
    const auto width = [&](int bytes, const CString& tail) {
        return static_cast<int>(MeasureText(dc, Cut(label, bytes, tail)).cx);
    };
    const int few = BytesOfCharacters(label, length, kLeastCharacters);
    const int beyond = shared.length + BytesOfCharacters(label.Mid(shared.length), length - shared.length, 1);
    const int atEnd = width(std::max(few, beyond), CString());
    const CString tail = label.Mid(shared.lastWord);
    return tail.IsEmpty() || shared.lastWord < few ? atEnd : std::min(atEnd, width(few, tail));
}

} // namespace kavlix
