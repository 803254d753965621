#pragma once

#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <unistd.h>
#include <vector>

namespace marlevo {

/// The first page of a PDF file, rendered on white by another program at a pixel a point.
struct PagePicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;

    std::array<int, 3> pixel(int x, int y) const {
        const std::size_t at = 3 * (static_cast<std::size_t>(y) * width + x);
        return {rgb[at], rgb[at + 1], rgb[at + 2]};
    }
};

/// A program that renders pages, with its arguments to turn `in.pdf` into `out`, a PPM file.
struct PageReader {
    const char* name;
    const char* program;
    const char* arguments;

    friend void PrintTo(const PageReader& reader, std::ostream* out) { *out << reader.name; }
};

inline constexpr std::array pageReaders{
    PageReader{"Poppler", "pdftoppm", "-r 72 -singlefile in.pdf page && mv page.ppm out"},
    PageReader{"MuPdf", "mutool", "draw -q -N -r 72 -o page.ppm in.pdf && mv page.ppm out"},
    PageReader{"Ghostscript", "gs",
               "-q -dSAFER -dBATCH -dNOPAUSE -r72 -dTextAlphaBits=4 -dGraphicsAlphaBits=4 "
               "-sDEVICE=ppmraw -sOutputFile=out in.pdf"},
};

inline bool isInstalled(const PageReader& reader) {
    return std::system(("command -v " + std::string(reader.program) + " >/dev/null").c_str()) == 0;
}

/// Nothing if the reader fails or reports a warning.
inline std::optional<PagePicture> showPage(const PageReader& reader,
                                           std::span<const std::uint8_t> pdf) {
    const auto folder = std::filesystem::temp_directory_path() /
                        ("marlevo-page-" + std::to_string(getpid()) + reader.name);
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "in.pdf", std::ios::binary)
        .write(reinterpret_cast<const char*>(pdf.data()), static_cast<std::streamsize>(pdf.size()));
    const std::string command = "cd " + folder.string() + " && { " + reader.program + " " +
                                reader.arguments + "; } 2>complaints";
    std::optional<PagePicture> picture;
    if (std::system(command.c_str()) == 0 && std::filesystem::is_empty(folder / "complaints")) {
        std::ifstream file(folder / "out", std::ios::binary);
        std::string magic;
        int most = 0;
        picture.emplace();
        // Ghostscript writes a comment line.
        file >> magic >> std::ws;
        if (file.peek() == '#') std::getline(file, magic);
        file >> picture->width >> picture->height >> most;
        file.get();
        picture->rgb.assign(std::istreambuf_iterator<char>(file), {});
        if (picture->rgb.size() != std::size_t{3} * picture->width * picture->height)
            picture.reset();
    }
    std::filesystem::remove_all(folder);
    return picture;
}

}  // namespace marlevo
