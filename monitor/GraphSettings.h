#pragma once

#include <kavlix/GraphCtrl.h>

#include <string>
#include <vector>

namespace kavlix::monitor {

/// How one series is drawn.
struct SeriesSettings {
    std::string name;
    COLORREF color = RGB(0, 0, 0);
    int lineSize = 0; ///< width of the line in logical units (1/30 pixel); 0 is one pixel
    CDataset::MarkerType marker = CDataset::MarkerNone;
    bool visible = true;

    bool operator==(const SeriesSettings& other) const;
};

/// What a person chooses about the graph. What follows from the data (ranges, units, label texts) is not
/// here.
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

/// Colour of the series with this index (from 0) until a person chooses another; all are readable on white.
COLORREF DefaultSeriesColor(std::size_t index);

/// Settings for a picture of these series. Series of few samples get markers, a single one gets no legend.
/// The two-axis style is taken only with two series or more; otherwise lines.
GraphSettings DefaultSettings(std::string title, const std::vector<std::string>& seriesNames,
                              std::size_t samples, CGraphCtrl::GraphStyle style);

/// Names of markers and line widths in the order in which a person chooses among them.
struct MarkerChoice {
    CDataset::MarkerType type;
    const char* name;
};
struct LineSizeChoice {
    int size; ///< logical units
    const char* name;
};
const std::vector<MarkerChoice>& MarkerChoices();
const std::vector<LineSizeChoice>& LineSizeChoices();

} // namespace kavlix::monitor
