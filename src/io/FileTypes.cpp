#include "io/FileTypes.h"

namespace marlevo {

FileType fileType(ExportFormat format, const Services& services) {
    switch (format) {
    case ExportFormat::png:
        return {services.translate("Files", "PNG image"), {"png"}};
    case ExportFormat::jpeg:
        return {services.translate("Files", "JPEG image"), {"jpeg", "jpg"}};
    case ExportFormat::tiff:
        return {services.translate("Files", "TIFF image"), {"tiff", "tif"}};
    case ExportFormat::bmp:
        return {services.translate("Files", "BMP image"), {"bmp"}};
    case ExportFormat::pdf:
        return {services.translate("Files", "PDF document"), {"pdf"}};
    }
    return {};
}

FileType documentFileType(const Services& services) {
    return {services.translate("Files", "Marlevo drawing"), {"marlevo"}};
}

}  // namespace marlevo
