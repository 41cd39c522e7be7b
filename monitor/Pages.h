#pragma once

#include "monitor/MonitorPage.h"
#include "monitor/recording/Options.h"

#include <array>
#include <memory>

namespace kavlix::monitor {

/// Makes a page without a window.
using PageMaker = std::unique_ptr<CMonitorPage> (*)(PageHost&);

/// All kinds of pages, in the order of recording::kPageNames and of the commands from ID_PAGE_FIRST on.
const std::array<PageMaker, recording::kPageNames.size()>& PageMakers();

} // namespace kavlix::monitor
