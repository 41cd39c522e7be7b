// SPDX-License-Identifier: MIT
// The fixture of the graph control, and its default look.
#pragma once

#include "tests/support/GraphFixture.h"

#include <kavlix/GraphCtrl.h>

#include <initializer_list>

using OpenGraph = testkit::OpenGraphOf<CGraphCtrl>;
using testkit::MenuItems;
using testkit::Text;

/// The fonts that live with a control, as the recorder writes them: a recording does not see their end.
inline const Strings kControlFonts = {"Arial 350", "Arial 300 @900", "Arial 450", "Arial 350"};

/// The setters of all colours of a control.
inline void (CGraphCtrl::*const kColorSetters[])(COLORREF) = {
    &CGraphCtrl::SetGridColor,        &CGraphCtrl::SetBkColor,          &CGraphCtrl::SetTitleColor,
    &CGraphCtrl::SetXLabelColor,      &CGraphCtrl::SetYLabelColor,      &CGraphCtrl::SetY2LabelColor,
    &CGraphCtrl::SetAxisColor,        &CGraphCtrl::SetXTickLabelColor,  &CGraphCtrl::SetYTickLabelColor,
    &CGraphCtrl::SetY2TickLabelColor, &CGraphCtrl::SetLegendColor,      &CGraphCtrl::SetLegendTextColor,
    &CGraphCtrl::SetCaptionColor,     &CGraphCtrl::SetCaptionTextColor, &CGraphCtrl::SetLineCursorColor,
    &CGraphCtrl::SetBoxCursorColor};

/// Every property as "name=value", and of each dataset "number: colour marker line-size 'legend' visible
/// samples".
Strings Properties(const OpenGraph& graph);
/// The parts with blanks between them.
std::string Joined(const Strings& parts);

class GraphTest : public testkit::GraphFixture<OpenGraph> {
protected:
    /// Appends values to a dataset.
    void Add(int dataset, std::initializer_list<double> values);
    /// The X range fixed to [min, max].
    void FixX(double min, double max);
    /// All texts in white on white boards, so that pictures differ in no letter.
    void HideTexts();
};
