// SPDX-License-Identifier: MIT
// The person's choices about graphs, which all pages share.
#pragma once

#include <kavlix/GraphCtrl.h>

#include <string>
#include <vector>

namespace kavlix::monitor {

/// The font face of the pages' texts.
constexpr LPCTSTR kFontFace = _T("Arial");

/// How one series is drawn.
struct SeriesSettings {
    std::string name;
    COLORREF color = RGB(0, 0, 0);
    int lineSize = 0; ///< width of the line in logical units (1/30 pixel); 0: one pixel
    CDataset::MarkerType marker = CDataset::MarkerNone;
    bool visible = true;

    bool operator==(const SeriesSettings& other) const;
};

/// The person's choices about the graph. Ranges, units and label texts follow from the data and are not here.
struct GraphSettings {
    std::string title;
    CGraphCtrl::GraphStyle style = CGraphCtrl::GraphStyleLine;
    CGraphCtrl::TitleStyle titleStyle = CGraphCtrl::TitleStyleCaption;
    bool legend = true;
    bool gridX = false;
    bool gridY = true;
    std::vector<SeriesSettings> series; ///< at most CGraphCtrl::DatasetCount

    bool operator==(const GraphSettings& other) const;
};

/// The default colour of the series with this index; all are readable on white.
COLORREF DefaultSeriesColor(std::size_t index);

/// The settings that a new recording begins with. Few samples get markers. A single series gets no legend,
/// and lines instead of the two-axis style.
GraphSettings DefaultSettings(std::string title, const std::vector<std::string>& seriesNames,
                              std::size_t samples, CGraphCtrl::GraphStyle style);

/// A marker that the settings dialog offers.
struct MarkerChoice {
    CDataset::MarkerType type;
    LPCTSTR name;
};

/// A line width that the settings dialog offers.
struct LineSizeChoice {
    int size; ///< logical units; 0: one pixel
    LPCTSTR name;
};

const std::vector<MarkerChoice>& MarkerChoices();
const std::vector<LineSizeChoice>& LineSizeChoices();

} // namespace kavlix::monitor
