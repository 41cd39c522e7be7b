// SPDX-License-Identifier: MIT
// Abbreviation of labels by measuring candidate texts.
#include "piechart/PieLabelAbbreviation.h"

#include <algorithm>

#include "gdi/Text.h"

namespace kavlix {
namespace {

constexpr TCHAR kDots[] = _T("...");
constexpr int kLeastCharacters = 2; // least number before the dots of an abbreviation worth reading

/// Length of the beginning of `a` that `b` begins with too, without cutting a character.
int CommonLength(const CString& a, const CString& b) {
    int length = 0;
    while (length < std::min(a.GetLength(), b.GetLength()) && a[length] == b[length])
        ++length;
    return WholeCharacters(a, a.GetLength(), length);
}

/// The first `length` TCHARs of the label without blanks at their end, dots, and `tail`.
CString Cut(const CString& label, int length, const CString& tail) {
    CString cut = label.Left(length);
    cut.TrimRight();
    return cut + kDots + tail;
}

/// The greatest length with which Cut() stays within `width`; 0 when no character fits.
int FittingCut(const CDC& dc, const CString& label, const CString& tail, int width) {
    // A code point has at most 4 TCHARs, and counts as at least one logical unit wide.
    constexpr int kMostPerUnit = 4;
    return FittingLength(label, kMostPerUnit * width,
                         [&](int length) { return MeasureText(dc, Cut(label, length, tail)).cx <= width; });
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
            each.length = CommonLength(label, *(at - 1));
        if (at + 1 != sorted.end())
            each.length = std::max(each.length, CommonLength(label, *(at + 1)));
        const int blank = label.Left(each.length).ReverseFind(' ');
        each.lastWord = blank >= 0 ? blank + 1 : each.length;
        found.push_back(each);
    }
    return found;
}

CString AbbreviateLabel(const CDC& dc, const CString& label, const SharedBeginning& shared, int width) {
    if (MeasureText(dc, label).cx <= width)
        return label;
    const int fitting = FittingCut(dc, label, CString(), width);
    if (fitting > shared.length)
        return Cut(label, fitting, CString());
    const CString tail = label.Mid(shared.lastWord);
    const int before = tail.IsEmpty() ? 0 : std::min(FittingCut(dc, label, tail, width), shared.lastWord);
    return before > 0 ? Cut(label, before, tail) : CString();
}

int NarrowestLabel(const CDC& dc, const CString& label, const SharedBeginning& shared) {
    const int length = label.GetLength();
    const auto width = [&](int cut, const CString& tail) {
        return static_cast<int>(MeasureText(dc, Cut(label, cut, tail)).cx);
    };
    const int few = LengthOfCharacters(label, length, kLeastCharacters);
    const int beyond =
        shared.length + LengthOfCharacters(label.Mid(shared.length), length - shared.length, 1);
    const int atEnd = width(std::max(few, beyond), CString());
    const CString tail = label.Mid(shared.lastWord);
    return tail.IsEmpty() || shared.lastWord < few ? atEnd : std::min(atEnd, width(few, tail));
}

} // namespace kavlix
