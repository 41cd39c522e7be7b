// SPDX-License-Identifier: MIT
// Abbreviates the labels of a pie so that labels with equal beginnings stay different.
#pragma once

#include <afxwin.h>

#include <vector>

namespace kavlix {

/// The beginning that a label shares with another label, in TCHARs.
struct SharedBeginning {
    int length = 0; ///< of the longest common beginning with any other label
    /// Where the text after the last blank of the common beginning starts; without a blank, where the labels
    /// differ first. A label that is abbreviated in the middle keeps the text from there.
    int lastWord = 0;
};

/// For each label, the longest beginning that it shares with a different label of the list.
std::vector<SharedBeginning> FindSharedBeginnings(const std::vector<CString>& labels);

/// The label shortened to `width` logical units in the font of `dc`: whole if it fits, "Depart..." if that
/// differs from all other labels, otherwise "Depar...17". Empty when no such text fits. No character is cut.
CString AbbreviateLabel(const CDC& dc, const CString& label, const SharedBeginning& shared, int width);

/// The least width, in logical units, at which AbbreviateLabel() gives an abbreviation worth reading: one
/// with at least two characters before the dots that differs from all other labels.
int NarrowestLabel(const CDC& dc, const CString& label, const SharedBeginning& shared);

} // namespace kavlix
