#include "io/FileTypes.h"

namespace marlevo {

FileType fileType(ExportFormat format, const Services& services) {
    switch (format) {
    case ExportFormat::png:
        return {services.translate("Files", "PNG image"), "image/png", {"png"}};
    case ExportFormat::jpeg:
        return {services.translate("Files", "JPEG image"), "image/jpeg", {"jpeg", "jpg"}};
    case ExportFormat::tiff:
        return {services.translate("Files", "TIFF image"), "image/tiff", {"tiff", "tif"}};
    case ExportFormat::bmp:
        return {services.translate("Files", "BMP image"), "image/bmp", {"bmp"}};
    case ExportFormat::pdf:
        return {services.translate("Files", "PDF document"), "application/pdf", {"pdf"}};
    }
    return {};
}

FileType documentFileType(const Services& services) {
    return {services.translate("Files", "Marlevo drawing"), "application/x-marlevo", {"marlevo"}};
}

}  // namespace marlevo
