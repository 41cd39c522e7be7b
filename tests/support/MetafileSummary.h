#pragma once

#include <windows.h>

#include <sstream>
#include <string>

namespace testkit {

/// What an enhanced metafile is made of, in lines "name value": bounds (pixels) and frame (0.01 mm) of its
/// header, the mapping it sets, and its records' types in order. Two metafiles of the same drawing have the
/// same summary; the description is not part of it.
inline std::string MetafileSummary(HENHMETAFILE picture) {
    struct Reader {
        std::ostringstream mapping;
        std::ostringstream kinds;
        int records = 0;

        static int CALLBACK Next(HDC, HANDLETABLE*, const ENHMETARECORD* record, int, LPARAM self) {
            Reader& reader = *reinterpret_cast<Reader*>(self);
            ++reader.records;
            reader.kinds << " " << record->iType;
            const char* name = nullptr;
            switch (record->iType) {
            case EMR_SETMAPMODE:
                reader.mapping << " mode " << record->dParm[0];
                break;
            case EMR_SETWINDOWEXTEX:
                name = "window";
                break;
            case EMR_SETVIEWPORTEXTEX:
                name = "viewport";
                break;
            case EMR_SETWINDOWORGEX:
                name = "window origin";
                break;
            case EMR_SETVIEWPORTORGEX:
                name = "viewport origin";
                break;
            }
            if (name != nullptr)
                reader.mapping << " " << name << " " << static_cast<LONG>(record->dParm[0]) << ","
                               << static_cast<LONG>(record->dParm[1]);
            return 1;
        }
    } reader;
    ENHMETAHEADER header = {};
    GetEnhMetaFileHeader(picture, sizeof(header), &header);
    EnumEnhMetaFile(nullptr, picture, &Reader::Next, &reader, nullptr);

    const auto box = [](const RECTL& r) {
        std::ostringstream text;
        text << r.left << "," << r.top << "," << r.right << "," << r.bottom;
        return text.str();
    };
    std::ostringstream text;
    text << "bounds " << box(header.rclBounds) << "\nframe " << box(header.rclFrame) << "\nmapping"
         << reader.mapping.str() << "\nrecords " << reader.records << " of " << header.nRecords << "\nkinds"
         << reader.kinds.str() << "\n";
    return text.str();
}

} // namespace testkit
