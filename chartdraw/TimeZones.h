// SPDX-License-Identifier: MIT
// The time zone of a time axis.
#pragma once

#include <afxwin.h>

#include "plot/ZoneOffsets.h"

namespace kavlix {

/// The local zone, UTC, or a zone that Windows knows by name.
class AxisZone {
public:
    AxisZone(); ///< the local zone

    /// An empty name is the local zone; "UTC"; or the name of a zone such as "W. Europe Standard Time". False, with
    /// nothing changed, for an unknown name.
    bool Set(LPCTSTR name);
    /// The offsets of the zone. The local zone is the one that is set in Windows at this call; the offsets stay valid
    /// until the next call.
    const ZoneOffsets& Offsets();

private:
    enum class Kind { Local, Utc, Named };
    void Use(const DYNAMIC_TIME_ZONE_INFORMATION& zone);

    Kind m_kind = Kind::Local;
    DYNAMIC_TIME_ZONE_INFORMATION m_zone = {};
    ZoneOffsets m_offsets;
};

} // namespace kavlix
