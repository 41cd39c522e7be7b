// How texts of a pie are cut to their room.
#include "piechart/PieChartCtrlTexts.h"

#include <algorithm>

#include "gdi/Text.h"

namespace kavlix {
namespace {

constexpr char kDots[] = "...";
constexpr int kFewCharacters = 2; // the beginning of the shortest abbreviation

int CommonBytes(const CString& a, const CString& b) {
    int bytes = 0;
    while (bytes < std::min(a.GetLength(), b.GetLength()) && a[bytes] == b[bytes])
        ++bytes;
    return WholeCharacters(a, a.GetLength(), bytes);
}

CString Cut(const CString& label, int bytes, const CString& tail) {
    CString cut = label.Left(bytes);
    cut.TrimRight();
    return cut + kDots + tail;
}

/// Bytes of as many whole characters as go with the dots and `tail` into `width`; 0 when not one does.
int FittingBytes(const CDC& dc, const CString& label, const CString& tail, int width) {
    const int length = label.GetLength();
    int fits = 0;
    for (int beyond = std::min(length, 4 * width) + 1; fits + 1 < beyond;) {
        const int middle = fits + (beyond - fits) / 2;
        if (MeasureText(dc, Cut(label, WholeCharacters(label, length, middle), tail)).cx <= width)
            fits = middle;
        else
            beyond = middle;
    }
    return WholeCharacters(label, length, fits);
}

} // namespace

std::vector<LabelEnds> FindLabelEnds(const std::vector<CString>& labels) {
    // Of sorted labels the neighbours share most.
    std::vector<CString> sorted = labels;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    std::vector<LabelEnds> ends;
    for (const CString& label : labels) {
        const auto at = std::lower_bound(sorted.begin(), sorted.end(), label);
        LabelEnds each;
        if (at != sorted.begin())
            each.common = CommonBytes(label, *(at - 1));
        if (at + 1 != sorted.end())
            each.common = std::max(each.common, CommonBytes(label, *(at + 1)));
        const int blank = label.Left(each.common).ReverseFind(' ');
        each.tail = blank >= 0 ? blank + 1 : each.common;
        ends.push_back(each);
    }
    return ends;
}

CString AbbreviateLabel(const CDC& dc, const CString& label, const LabelEnds& ends, int width) {
    if (MeasureText(dc, label).cx <= width)
        return label;
    const int bytes = FittingBytes(dc, label, CString(), width);
    if (bytes > ends.common)
        return Cut(label, bytes, CString());
    const CString tail = label.Mid(ends.tail);
    const int before = tail.IsEmpty() ? 0 : std::min(FittingBytes(dc, label, tail, width), ends.tail);
    return before > 0 ? Cut(label, before, tail) : CString();
}

int NarrowestLabel(const CDC& dc, const CString& label, const LabelEnds& ends) {
    const int length = label.GetLength();
    const auto width = [&](int bytes, const CString& tail) {
        return static_cast<int>(MeasureText(dc, Cut(label, bytes, tail)).cx);
    };
    const int few = BytesOfCharacters(label, length, kFewCharacters);
    const int beyond = ends.common + BytesOfCharacters(label.Mid(ends.common), length - ends.common, 1);
    const int atEnd = width(std::max(few, beyond), CString());
    const CString tail = label.Mid(ends.tail);
    return tail.IsEmpty() || ends.tail < few ? atEnd : std::min(atEnd, width(few, tail));
}

} // namespace kavlix
