#include "io/FileTypes.h"

namespace marlevo {

FileType fileType(ExportFormat format) {
    switch (format) {
    case ExportFormat::png:
        return {"PNG image", "image/png", {"png"}};
    case ExportFormat::jpeg:
        return {"JPEG image", "image/jpeg", {"jpeg", "jpg"}};
    case ExportFormat::tiff:
        return {"TIFF image", "image/tiff", {"tiff", "tif"}};
    case ExportFormat::bmp:
        return {"BMP image", "image/bmp", {"bmp"}};
    case ExportFormat::pdf:
        return {"PDF document", "application/pdf", {"pdf"}};
    }
    return {};
}

FileType documentFileType() { return {"Marlevo drawing", "application/x-marlevo", {"marlevo"}}; }

}  // namespace marlevo
