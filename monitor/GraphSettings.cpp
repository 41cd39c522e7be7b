// SPDX-License-Identifier: MIT
// Default settings, and the lists of markers and line widths.

#include "monitor/GraphSettings.h"

#include <array>
#include <tuple>
#include <utility>

namespace kavlix::monitor {
namespace {

/// With more samples than this, markers would overlap.
constexpr std::size_t kMarkerSamples = 60;

constexpr std::array<COLORREF, CGraphCtrl::DatasetCount> kColors = {
    RGB(20, 90, 180),  RGB(215, 85, 0),    RGB(25, 135, 60),  RGB(190, 25, 70), RGB(115, 65, 175),
    RGB(0, 135, 150),  RGB(135, 85, 50),   RGB(205, 60, 165), RGB(90, 95, 105), RGB(140, 130, 0),
    RGB(80, 155, 230), RGB(240, 130, 110), RGB(40, 50, 95)};

} // namespace

bool SeriesSettings::operator==(const SeriesSettings& other) const {
    return std::tie(name, color, lineSize, marker, visible) ==
           std::tie(other.name, other.color, other.lineSize, other.marker, other.visible);
}

bool GraphSettings::operator==(const GraphSettings& other) const {
    return std::tie(title, style, titleStyle, legend, gridX, gridY, series) ==
           std::tie(other.title, other.style, other.titleStyle, other.legend, other.gridX, other.gridY,
                    other.series);
}

COLORREF DefaultSeriesColor(std::size_t index) {
    return kColors[index % kColors.size()];
}

GraphSettings DefaultSettings(std::string title, const std::vector<std::string>& seriesNames,
                              std::size_t samples, CGraphCtrl::GraphStyle style) {
    GraphSettings settings;
    settings.title = std::move(title);
    settings.style =
        style == CGraphCtrl::GraphStyleTwoAxis && seriesNames.size() < 2 ? CGraphCtrl::GraphStyleLine : style;
    settings.legend = seriesNames.size() > 1;
    for (std::size_t i = 0; i < seriesNames.size() && i < kColors.size(); ++i) {
        SeriesSettings series;
        series.name = seriesNames[i];
        series.color = DefaultSeriesColor(i);
        series.marker = samples <= kMarkerSamples ? CDataset::MarkerCircle : CDataset::MarkerNone;
        settings.series.push_back(std::move(series));
    }
    return settings;
}

const std::vector<MarkerChoice>& MarkerChoices() {
    static const std::vector<MarkerChoice> choices = {
        {CDataset::MarkerNone, _T("None")},       {CDataset::MarkerSquare, _T("Square")},
        {CDataset::MarkerDiamond, _T("Diamond")}, {CDataset::MarkerTriangle, _T("Triangle")},
        {CDataset::MarkerCircle, _T("Circle")},   {CDataset::MarkerCross, _T("Cross")}};
    return choices;
}

const std::vector<LineSizeChoice>& LineSizeChoices() {
    static const std::vector<LineSizeChoice> choices = {{0, _T("1 pixel")},    {60, _T("2 pixels")},
                                                        {90, _T("3 pixels")},  {120, _T("4 pixels")},
                                                        {180, _T("6 pixels")}, {240, _T("8 pixels")}};
    return choices;
}

} // namespace kavlix::monitor
