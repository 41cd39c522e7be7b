// SPDX-License-Identifier: MIT
// The table of all pages.

#include "monitor/Pages.h"

#include "monitor/ChartPage.h"
#include "monitor/GraphPage.h"
#include "monitor/MultiPage.h"
#include "monitor/PiePage.h"
#include "monitor/ScrollPage.h"

namespace kavlix::monitor {
namespace {

template <class Page> std::unique_ptr<CMonitorPage> Make(PageHost& host) {
    return std::make_unique<Page>(host);
}

} // namespace

const std::array<PageMaker, recording::kPageNames.size()>& PageMakers() {
    static constexpr std::array<PageMaker, recording::kPageNames.size()> makers = {
        Make<CGraphPage>,  // graph
        Make<CScrollPage>, // scroll
        Make<CPiePage>,    // pie
        Make<CChartPage>,  // chart
        Make<CMultiPage>,  // multi
    };
    return makers;
}

} // namespace kavlix::monitor
