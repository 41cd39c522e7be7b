// SPDX-License-Identifier: MIT
// The charts that share an X view and a cursor.
#pragma once

namespace kavlix {

struct ChartLinkState {};

} // namespace kavlix
