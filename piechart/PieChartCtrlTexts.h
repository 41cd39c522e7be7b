// Abbreviations of a pie's labels: labels with equal beginnings keep the end that tells them apart.
#pragma once

#include <afxwin.h>

#include <vector>

namespace kavlix {

/// What tells a label from the others, in bytes from its beginning.
struct LabelEnds {
    int common = 0; ///< up to here another label begins alike
    int tail = 0;   ///< the last word that begins before the difference, to the end
};

/// For each label what tells it from those that differ from it.
std::vector<LabelEnds> FindLabelEnds(const std::vector<CString>& labels);

/// The label in `width` logical units of the DC's font: whole, as "Depart...", or as "Depar...17" where the
/// beginning is another label's too. Empty when even that is too wide. No character is cut.
CString AbbreviateLabel(const CDC& dc, const CString& label, const LabelEnds& ends, int width);

/// The width below which AbbreviateLabel() gives nothing, or hardly more than dots.
int NarrowestLabel(const CDC& dc, const CString& label, const LabelEnds& ends);

} // namespace kavlix
