#pragma once

#include <array>
#include <string_view>

namespace marlevo {

/// The file formats that a picture is exported in.
enum class ExportFormat : unsigned char { png, jpeg, tiff, bmp, pdf };

inline constexpr std::array allExportFormats{ExportFormat::png, ExportFormat::jpeg,
                                             ExportFormat::tiff, ExportFormat::bmp,
                                             ExportFormat::pdf};

/// The format's name, which is shown and identifies it: "PNG", "JPEG", "TIFF", "BMP", "PDF".
constexpr std::string_view rawValue(ExportFormat format) {
    switch (format) {
    case ExportFormat::png:
        return "PNG";
    case ExportFormat::jpeg:
        return "JPEG";
    case ExportFormat::tiff:
        return "TIFF";
    case ExportFormat::bmp:
        return "BMP";
    case ExportFormat::pdf:
        return "PDF";
    }
    return {};
}

}  // namespace marlevo
