// Draws the same scenes with Marlevo's rasteriser, cairo, Qt and AGG, and prints one table: the
// time a shape takes in each, the ratio, the time of only blending the covered pixels, and the
// difference of each from a supersampled truth. Then the time of repainting a small part of a
// picture.

#include "bench/RasterScenes.h"
#include "bench/SupersampledTruth.h"
#include "graphics/BitmapContext.h"
#include "graphics/Blend.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <agg_conv_curve.h>
#include <agg_conv_stroke.h>
#include <agg_ellipse.h>
#include <agg_path_storage.h>
#include <agg_pixfmt_rgba.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_scanline.h>
#include <agg_scanline_u.h>
#include <cairo.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace marlevo::bench {

namespace {

constexpr IntRect wholePicture{0, 0, sceneWidth, sceneHeight};

/// Pixels in the order blue, green, red, alpha, which all of them support.
struct Picture {
    std::vector<std::uint8_t> bytes = std::vector<std::uint8_t>(4 * sceneWidth * sceneHeight);

    PixelBuffer part(const IntRect& area) {
        const PixelBuffer whole{bytes.data(), 4 * sceneWidth, wholePicture, PixelOrder::bgra};
        return {whole.pixel(area.left, area.top), whole.stride, area, whole.order};
    }
};

void drawOurs(const std::vector<Shape>& shapes, Picture& picture,
              const IntRect& area = wholePicture) {
    BitmapContext context(picture.part(area), DeviceFrame::yDown(1));
    for (const Shape& shape : shapes) {
        context.setAlpha(shape.opacity);
        if (shape.lineWidth == 0) {
            context.fillPath(shape.path, shape.color);
        } else {
            context.strokePath(shape.path, shape.color, shape.lineWidth);
        }
    }
}

void addToCairo(cairo_t* cairo, const Path& path) {
    Point current;
    for (const Path::Element& e : path.elements()) {
        const Rect rect = e.rect();
        switch (e.kind) {
        case Path::Kind::move:
            cairo_move_to(cairo, e.point.x, e.point.y);
            break;
        case Path::Kind::line:
            cairo_line_to(cairo, e.point.x, e.point.y);
            break;
        case Path::Kind::quadCurve:
            cairo_curve_to(cairo, current.x + (e.control.x - current.x) * 2 / 3,
                           current.y + (e.control.y - current.y) * 2 / 3,
                           e.point.x + (e.control.x - e.point.x) * 2 / 3,
                           e.point.y + (e.control.y - e.point.y) * 2 / 3, e.point.x, e.point.y);
            break;
        case Path::Kind::rect:
            cairo_rectangle(cairo, e.point.x, e.point.y, rect.size.width, rect.size.height);
            break;
        case Path::Kind::ellipse:
            cairo_save(cairo);
            cairo_translate(cairo, e.point.x + rect.size.width / 2,
                            e.point.y + rect.size.height / 2);
            cairo_scale(cairo, rect.size.width / 2, rect.size.height / 2);
            cairo_arc(cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
            cairo_close_path(cairo);
            cairo_restore(cairo);
            break;
        }
        current = e.point;
    }
}

void drawCairo(const std::vector<Shape>& shapes, Picture& picture,
               const IntRect& area = wholePicture) {
    cairo_surface_t* const surface = cairo_image_surface_create_for_data(
        picture.bytes.data(), CAIRO_FORMAT_ARGB32, sceneWidth, sceneHeight, 4 * sceneWidth);
    cairo_t* const cairo = cairo_create(surface);
    cairo_rectangle(cairo, area.left, area.top, area.width(), area.height());
    cairo_clip(cairo);
    cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
    for (const Shape& shape : shapes) {
        addToCairo(cairo, shape.path);
        cairo_set_source_rgba(cairo, shape.color.red, shape.color.green, shape.color.blue,
                              shape.opacity);
        cairo_set_line_width(cairo, shape.lineWidth);
        if (shape.lineWidth == 0) {
            cairo_fill(cairo);
        } else {
            cairo_stroke(cairo);
        }
    }
    cairo_destroy(cairo);
    cairo_surface_destroy(surface);
}

QPainterPath toQt(const Path& path) {
    QPainterPath result;
    result.setFillRule(Qt::WindingFill);
    for (const Path::Element& e : path.elements()) {
        const Rect rect = e.rect();
        switch (e.kind) {
        case Path::Kind::move:
            result.moveTo(e.point.x, e.point.y);
            break;
        case Path::Kind::line:
            result.lineTo(e.point.x, e.point.y);
            break;
        case Path::Kind::quadCurve:
            result.quadTo(e.control.x, e.control.y, e.point.x, e.point.y);
            break;
        case Path::Kind::rect:
            result.addRect(e.point.x, e.point.y, rect.size.width, rect.size.height);
            break;
        case Path::Kind::ellipse:
            result.addEllipse(e.point.x, e.point.y, rect.size.width, rect.size.height);
            break;
        }
    }
    return result;
}

void drawQt(const std::vector<Shape>& shapes, const std::vector<QPainterPath>& paths,
            Picture& picture, const IntRect& area = wholePicture) {
    QImage image(picture.bytes.data(), sceneWidth, sceneHeight, 4 * sceneWidth,
                 QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (area != wholePicture) painter.setClipRect(area.left, area.top, area.width(), area.height());
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const Shape& shape = shapes[i];
        const QColor color = QColor::fromRgbF(static_cast<float>(shape.color.red),
                                              static_cast<float>(shape.color.green),
                                              static_cast<float>(shape.color.blue));
        painter.setOpacity(shape.opacity);
        if (shape.lineWidth == 0) {
            painter.fillPath(paths[i], color);
        } else {
            painter.strokePath(
                paths[i], QPen(color, shape.lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        }
    }
}

std::vector<QPainterPath> toQt(const std::vector<Shape>& shapes) {
    std::vector<QPainterPath> paths;
    for (const Shape& shape : shapes)
        paths.push_back(toQt(shape.path));
    return paths;
}

agg::path_storage toAgg(const Path& path) {
    agg::path_storage result;
    for (const Path::Element& e : path.elements()) {
        const Rect rect = e.rect();
        switch (e.kind) {
        case Path::Kind::move:
            result.move_to(e.point.x, e.point.y);
            break;
        case Path::Kind::line:
            result.line_to(e.point.x, e.point.y);
            break;
        case Path::Kind::quadCurve:
            result.curve3(e.control.x, e.control.y, e.point.x, e.point.y);
            break;
        case Path::Kind::rect:
            result.move_to(rect.minX(), rect.minY());
            result.line_to(rect.maxX(), rect.minY());
            result.line_to(rect.maxX(), rect.maxY());
            result.line_to(rect.minX(), rect.maxY());
            result.close_polygon();
            break;
        case Path::Kind::ellipse: {
            agg::ellipse ellipse(rect.minX() + rect.size.width / 2,
                                 rect.minY() + rect.size.height / 2, rect.size.width / 2,
                                 rect.size.height / 2);
            result.concat_path(ellipse);
            break;
        }
        }
    }
    return result;
}

void drawAgg(const std::vector<Shape>& shapes, std::vector<agg::path_storage>& paths,
             Picture& picture) {
    agg::rendering_buffer rows(picture.bytes.data(), sceneWidth, sceneHeight, 4 * sceneWidth);
    agg::pixfmt_bgra32_pre pixels(rows);
    agg::renderer_base<agg::pixfmt_bgra32_pre> base(pixels);
    agg::rasterizer_scanline_aa<> rasterizer;
    rasterizer.clip_box(0, 0, sceneWidth, sceneHeight);
    agg::scanline_u8 scanline;
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        const Shape& shape = shapes[i];
        agg::conv_curve<agg::path_storage> curves(paths[i]);
        rasterizer.reset();
        if (shape.lineWidth == 0) {
            rasterizer.add_path(curves);
        } else {
            agg::conv_stroke<agg::conv_curve<agg::path_storage>> stroke(curves);
            stroke.width(shape.lineWidth);
            stroke.line_cap(agg::round_cap);
            stroke.line_join(agg::round_join);
            stroke.inner_join(agg::inner_round);
            rasterizer.add_path(stroke);
        }
        agg::rgba color(shape.color.red, shape.color.green, shape.color.blue, shape.opacity);
        agg::render_scanlines_aa_solid(rasterizer, scanline, base, color.premultiply());
    }
}

std::vector<agg::path_storage> toAgg(const std::vector<Shape>& shapes) {
    std::vector<agg::path_storage> paths;
    for (const Shape& shape : shapes)
        paths.push_back(toAgg(shape.path));
    return paths;
}

/// The coverage of a shape as runs of whole 8-pixel blocks, for blending only.
class CoveredRuns {
public:
    explicit CoveredRuns(const Shape& shape) : color_(packColor(shape.color, shape.opacity, {})) {
        Shape opaque = shape;
        opaque.opacity = 1;
        Picture picture;
        drawOurs({opaque}, picture);
        constexpr int block = 8;
        bool isRunOpen = false;
        for (int at = 0; at < sceneWidth * sceneHeight; at += block) {
            const auto alpha = [&](int i) { return picture.bytes[4 * (at + i) + 3]; };
            bool isCovered = false;
            for (int i = 0; i < block; ++i)
                isCovered |= alpha(i) != 0;
            if (isCovered && !isRunOpen) runs_.push_back({at, coverage_.size(), 0});
            isRunOpen = isCovered;
            if (!isCovered) continue;
            for (int i = 0; i < block; ++i)
                coverage_.push_back(alpha(i));
            runs_.back().count += block;
        }
    }

    void blendOnto(Picture& picture) const {
        for (const Run& run : runs_) {
            blendSpan(picture.bytes.data() + 4 * run.pixel, coverage_.data() + run.first, run.count,
                      color_);
        }
    }

private:
    struct Run {
        int pixel;
        std::size_t first;
        std::size_t count;
    };

    PackedColor color_;
    std::vector<std::uint8_t> coverage_;
    std::vector<Run> runs_;
};

/// Processor time of this thread, independent of other programs.
double microseconds(const std::function<void()>& work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
    };
    const double start = now();
    work();
    return now() - start;
}

/// The mean difference from the truth over all covered pixels, for single shapes.
class Straying {
public:
    void add(const SupersampledTruth& truth, const Picture& picture) {
        for (std::size_t i = 0; i < picture.bytes.size() / 4; ++i) {
            const double alpha = picture.bytes[4 * i + 3];
            const double exact = truth.coverage(i);
            if (alpha == 0 && exact == 0) continue;
            sum_ += std::abs(alpha - exact);
            ++count_;
        }
    }
    double mean() const { return sum_ / static_cast<double>(count_); }

private:
    double sum_ = 0;
    std::size_t count_ = 0;
};

/// The time a shape took by an earlier table of this program, or 0 if it has no such row.
double timeBefore(const std::string& file, const std::string& scene) {
    std::ifstream table(file);
    for (std::string row; std::getline(table, row);)
        if (row.starts_with(scene)) return std::atof(row.c_str() + scene.size());
    return 0;
}

void measure(const Scene& scene, int rounds, const std::string& baseline) {
    const std::vector<QPainterPath> paths = toQt(scene.shapes);
    std::vector<agg::path_storage> aggPaths = toAgg(scene.shapes);
    std::vector<CoveredRuns> covered;
    for (const Shape& shape : scene.shapes)
        covered.emplace_back(shape);

    Picture picture;
    const std::function<void()> works[] = {
        [&] { drawOurs(scene.shapes, picture); },
        [&] { drawCairo(scene.shapes, picture); },
        [&] { drawQt(scene.shapes, paths, picture); },
        [&] { drawAgg(scene.shapes, aggPaths, picture); },
        [&] {
            for (const CoveredRuns& runs : covered)
                runs.blendOnto(picture);
        },
    };
    // The fastest of several turns, because other programs can only slow a turn down.
    double best[std::size(works)];
    std::fill(std::begin(best), std::end(best), 1e18);
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < std::size(works); ++i) {
            best[i] = std::min(best[i], microseconds(works[i]));
        }
    }
    const double count = static_cast<double>(scene.shapes.size());
    const auto [ours, cairo, qt, agg, floor] = best;

    Straying straying[4];
    const std::size_t step = std::max<std::size_t>(scene.shapes.size() / 10, 1);
    for (std::size_t i = 0; i < scene.shapes.size(); i += step) {
        std::vector<Shape> one{scene.shapes[i]};
        one.front().opacity = 1;
        const SupersampledTruth truth(one.front());
        std::vector<agg::path_storage> aggPath = toAgg(one);
        Picture pictures[4];
        drawOurs(one, pictures[0]);
        drawCairo(one, pictures[1]);
        drawQt(one, toQt(one), pictures[2]);
        drawAgg(one, aggPath, pictures[3]);
        for (int k = 0; k < 4; ++k)
            straying[k].add(truth, pictures[k]);
    }

    std::printf("%-38s %8.1f %8.1f %8.1f %8.1f %7.1f %7.1f %7.1f %8.2f %8.1f %7.1f %7.2f %7.2f "
                "%7.2f %7.2f\n",
                scene.name.c_str(), ours / count, cairo / count, qt / count, agg / count,
                cairo / ours, qt / ours, agg / ours,
                timeBefore(baseline, scene.name) * count / ours, floor / count, ours / floor,
                straying[0].mean(), straying[1].mean(), straying[2].mean(), straying[3].mean());
    std::fflush(stdout);
}

bool reaches(const Shape& shape, const IntRect& area) {
    double minX = 1e9;
    double minY = 1e9;
    double maxX = -1e9;
    double maxY = -1e9;
    for (const Path::Element& e : shape.path.elements()) {
        minX = std::min(minX, e.point.x);
        minY = std::min(minY, e.point.y);
        maxX = std::max(maxX, e.point.x);
        maxY = std::max(maxY, e.point.y);
    }
    const double reach = shape.lineWidth / 2 + 1;
    return minX - reach < area.right && maxX + reach > area.left && minY - reach < area.bottom &&
           maxY + reach > area.top;
}

/// Repaints squares with the strokes whose bounds touch them.
void measureRepaint(const std::vector<Shape>& strokes, int side, int rounds) {
    double ours = 0;
    double cairo = 0;
    double qt = 0;
    int count = 0;
    Picture picture;
    for (int top = 40; top + side <= sceneHeight; top += 200) {
        for (int left = 100; left + side <= sceneWidth; left += 300) {
            const IntRect area{left, top, left + side, top + side};
            std::vector<Shape> near;
            for (const Shape& stroke : strokes)
                if (reaches(stroke, area)) near.push_back(stroke);
            const std::vector<QPainterPath> paths = toQt(near);
            const auto best = [&](const std::function<void()>& work) {
                double least = 1e18;
                for (int i = 0; i < rounds; ++i)
                    least = std::min(least, microseconds(work));
                return least;
            };
            ours += best([&] { drawOurs(near, picture, area); });
            cairo += best([&] { drawCairo(near, picture, area); });
            qt += best([&] { drawQt(near, paths, picture, area); });
            ++count;
        }
    }
    std::printf("\nrepainting %d x %d among %zu strokes, milliseconds: ours %.2f, cairo %.2f (%.1f "
                "times), Qt %.2f (%.1f times)\n",
                side, side, strokes.size(), ours / count / 1000, cairo / count / 1000, cairo / ours,
                qt / count / 1000, qt / ours);
}

}  // namespace

}  // namespace marlevo::bench

// raster [rounds] [scene] [baseline]: more rounds give steadier figures; a number above 0 selects
// one scene. With the table of an earlier build as baseline, the column "before/" has the ratio of
// its times to those of this run, else 0.
int main(int argc, char** argv) {
    using namespace marlevo::bench;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 5;
    const int only = argc > 2 ? std::atoi(argv[2]) : 0;
    const std::string baseline = argc > 3 ? argv[3] : "";
    SceneMaker maker;
    const Scene scenes[] = {
        maker.strokes("strokes, 100 points, width 3", 1000, 100, 3, 3, 1),
        maker.strokes("strokes, 300 points, width 24 to 60", 200, 300, 24, 60, 0.5),
        maker.fills(50, 4000),
        maker.denseOutlines(50, 4000),
        maker.shapes(500),
    };
    std::printf("%d x %d, one thread; microseconds a shape; stray: mean difference, of 255, to 8 x "
                "8 samples\n%-38s %8s %8s %8s %8s %7s %7s %7s %8s %8s %7s %7s %7s %7s %7s\n",
                sceneWidth, sceneHeight, "", "ours", "cairo", "Qt", "AGG", "cairo/", "Qt/", "AGG/",
                "before/", "floor", "/floor", "stray", "cairo", "Qt", "AGG");
    for (int i = 0; i < static_cast<int>(std::size(scenes)); ++i)
        if (only == 0 || only == i + 1) measure(scenes[i], rounds, baseline);
    if (only == 0) measureRepaint(maker.strokes("", 10000, 100, 3, 3, 1).shapes, 64, rounds);
}
