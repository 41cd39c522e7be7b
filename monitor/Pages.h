// SPDX-License-Identifier: MIT
// The list of all pages.
#pragma once

#include <array>
#include <memory>

#include "monitor/MonitorPage.h"
#include "monitor/recording/Options.h"

namespace kavlix::monitor {

/// Makes a page whose window is not created yet.
using PageMaker = std::unique_ptr<CMonitorPage> (*)(PageHost&);

/// A maker for every page, in the order of recording::kPageNames and of the commands from ID_PAGE_FIRST on.
const std::array<PageMaker, recording::kPageNames.size()>& PageMakers();

} // namespace kavlix::monitor
