// SPDX-License-Identifier: MIT
// Points on their way from any thread to the thread of a chart.
#pragma once

namespace kavlix {

class PostQueue {};

} // namespace kavlix
