#include "pictures/Landscape.h"

#include "tools/ToolChoice.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace marlevo {

namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr double width = 1280;
constexpr double height = 720;
constexpr double horizon = 452;
constexpr Point sun{842, 318};
constexpr double sunRadius = 52;

constexpr double brush = 20;
constexpr double overlap = 14;  // of neighbouring strokes, so that there is no gap

constexpr Color rgb(unsigned code) {
    return {(code >> 16 & 255) / 255.0, (code >> 8 & 255) / 255.0, (code & 255) / 255.0, 1};
}

Color mix(const Color& a, const Color& b, double share) {
    const auto between = [share](double from, double to) { return from + share * (to - from); };
    return {between(a.red, b.red), between(a.green, b.green), between(a.blue, b.blue), 1};
}

/// The colour at `share` (0 to 1) of a gradient of evenly spaced colours.
Color along(const std::vector<Color>& colors, double share) {
    const double place = std::clamp(share, 0.0, 1.0) * double(colors.size() - 1);
    const auto index = std::min(std::size_t(place), colors.size() - 2);
    return mix(colors[index], colors[index + 1], place - double(index));
}

const std::vector<Color> evening{rgb(0x24365f), rgb(0x4a5b8c), rgb(0x9a7f9f),
                                 rgb(0xe79a83), rgb(0xf9c795), rgb(0xfde6bd)};

/// A line of peaks of about unit height, the same for the same `seed`.
double ridge(double x, double seed) {
    double sum = 0;
    double weight = 0.75;
    double frequency = 1 / 620.0;
    for (int octave = 0; octave < 6; ++octave) {
        const double wave = std::sin(turn * x * frequency + seed * (octave + 1) * 2.4);
        sum += weight * (1 - 2 * std::abs(wave));
        weight *= 0.5;
        frequency *= 1.93;
    }
    return sum;
}

/// The points (x, y(x)) across the canvas. The first is inside, because a press outside draws
/// nothing.
std::vector<Point> acrossTheCanvas(double step, const std::function<double(double)>& y) {
    std::vector<Point> way;
    for (double x = 1; x <= width + step; x += step)
        way.push_back({x, std::clamp(y(x), 1.0, height - 1)});
    return way;
}

std::vector<Point> circle(Point centre, double radius) {
    std::vector<Point> way;
    for (int i = 0; i <= 64; ++i)
        way.push_back({centre.x + radius * std::cos(turn * i / 64),
                       centre.y + radius * std::sin(turn * i / 64)});
    return way;
}

}  // namespace

Landscape::Landscape(DocumentWindow& window)
    : document_(window.document()), pointer_(window.canvasView()) {}

void Landscape::pen(Color color, double width, double opacity) {
    document_.selectedColor = color;
    document_.lineWidth = width;
    document_.brushOpacity = opacity;
}

void Landscape::drag(const std::vector<Point>& way) {
    const double zoom = document_.zoom;
    const auto onScreen = [zoom](Point p) { return QPointF(p.x * zoom, p.y * zoom); };
    pointer_.press(onScreen(way.front()));
    for (const Point p : way)
        pointer_.move(onScreen(p));
    pointer_.release(onScreen(way.back()));
}

void Landscape::draw() {
    drawSky();
    drawSun();
    drawMountains();
    drawLake();
    drawShore();
    drawBirds();
    chooseBrush(document_);
    pen(rgb(0xe79a83), 6);
}

void Landscape::drawSky() {
    chooseBrush(document_);
    for (double y = 0; y < horizon + brush; y += overlap) {
        pen(along(evening, y / horizon), brush);
        drag(acrossTheCanvas(40, [y](double x) { return y + 5 * std::sin(x / 170 + y / 60); }));
    }
    for (int star = 0; star < 46; ++star) {
        const Point at{std::fmod(star * 397.3, width), std::fmod(star * 61.7, 150) + 6};
        pen(rgb(0xf4ecff), 1.4 + star % 3 * 0.7, 0.9);
        drag({at, {at.x + 0.7, at.y}});
    }
    drawClouds();
}

/// The eraser shows the white of the paper.
void Landscape::drawClouds() {
    struct Cloud {
        Point at;
        double length;
    };
    chooseEraser(document_);
    document_.lineWidth = 3;
    for (const Cloud& cloud : {Cloud{{180, 214}, 150}, {{1010, 138}, 130}, {{588, 286}, 84}}) {
        const auto [at, length] = cloud;
        drag({{at.x + length * 0.28, at.y - 11}, {at.x + length * 0.66, at.y - 11}});
        drag({at, {at.x + length, at.y}});
        drag({{at.x + length * 0.18, at.y + 11}, {at.x + length * 0.48, at.y + 11}});
    }
}

void Landscape::drawSun() {
    chooseBrush(document_);
    for (int ring = 0; ring < 7; ++ring) {
        pen(rgb(0xfff0cf), brush, 0.2 - 0.025 * ring);
        drag(circle(sun, sunRadius + 8 + ring * 15));
    }
    chooseShape(document_, Stroke::ShapeType::ellipse);
    const auto disc = [this](double radius) {
        drag({{sun.x - radius, sun.y - radius}, sun, {sun.x + radius, sun.y + radius}});
    };
    pen(rgb(0xfff6e0), 6);
    disc(sunRadius);
    chooseFill(document_);
    pen(rgb(0xfff3d2), 6);
    click(sun);
    // The pixels that the fill leaves at the edge.
    chooseShape(document_, Stroke::ShapeType::ellipse);
    disc(sunRadius - 4);
}

void Landscape::drawMountains() {
    struct Range {
        double base, rise, seed;
        Color top, bottom;
    };
    chooseBrush(document_);
    document_.addLayer();
    for (const Range& range : {Range{372, 62, 1.3, rgb(0x9d8db0), rgb(0xd8aeb0)},
                               Range{404, 50, 4.6, rgb(0x6b6a97), rgb(0x9d88a6)},
                               Range{436, 30, 8.1, rgb(0x3d4a74), rgb(0x5d5c86)}}) {
        const auto skyline = [&range](double x) {
            return range.base - range.rise * ridge(x, range.seed);
        };
        for (double down = 0; down < 150; down += overlap) {
            pen(mix(range.top, range.bottom, down / 130), brush);
            drag(acrossTheCanvas(
                5, [&](double x) { return std::min(skyline(x) + brush / 2 + down, horizon + 8); }));
        }
    }
}

void Landscape::drawLake() {
    document_.addLayer();
    for (double y = horizon + brush / 2; y < height + brush; y += overlap) {
        const double depth = (y - horizon) / (height - horizon);
        const Color mirrored = along(evening, 1 - 0.95 * depth);
        pen(mix(mirrored, rgb(0x1c2b52), 0.3 + 0.25 * depth), brush);
        drag(acrossTheCanvas(40, [&](double x) { return y + 3 * std::sin(x / 90 + y); }));
    }
    for (int glint = 0; glint < 46; ++glint) {
        const double depth = glint / 46.0;
        const double y = horizon + 12 + depth * 200;
        const double half = (12 + 34 * depth) * (0.55 + 0.45 * std::sin(glint * 2.7));
        const double x = sun.x + (8 + 26 * depth) * std::sin(glint * 1.9);
        pen(rgb(0xffe9bf), 2 + 2.5 * depth, 0.75 - 0.45 * depth);
        drag({{x - half, y}, {x, y + 1}, {x + half, y}});
    }
    for (int ripple = 0; ripple < 60; ++ripple) {
        const double depth = std::fmod(ripple * 0.377, 1.0);
        const double x = std::fmod(ripple * 211.7, width);
        const double y = horizon + 14 + depth * 190;
        pen(rgb(0xf3c9ae), 1.5, 0.28);
        drag({{x, y}, {x + 30 + 60 * depth, y + 1}});
    }
}

void Landscape::drawShore() {
    document_.addLayer();
    const auto edge = [](double x) {
        const double bay = std::exp(-std::pow((x - 760) / 330, 2));
        return 622 + 90 * bay + 7 * ridge(x * 2, 3.3);
    };
    for (double down = 0; down < 130; down += overlap) {
        pen(mix(rgb(0x1d2f3c), rgb(0x0e1a24), down / 110), brush);
        drag(acrossTheCanvas(12, [&](double x) { return edge(x) + brush / 2 + down; }));
    }
    pen(rgb(0x24404a), 1.6);
    for (double x = 4; x < width; x += 7) {
        const double lean = 5 * std::sin(x * 0.7);
        const double foot = edge(x) + 6;
        drag({{x, foot}, {x + lean / 2, foot - 9}, {x + lean, foot - 12 - 5 * std::sin(x)}});
    }
    struct Tree {
        double x, height;
    };
    for (const Tree& tree : {Tree{52, 250},
                             {118, 330},
                             {176, 210},
                             {236, 280},
                             {292, 150},
                             {352, 190},
                             {404, 110},
                             {1078, 130},
                             {1124, 200},
                             {1182, 300},
                             {1236, 230},
                             {1270, 340}})
        drawPine({tree.x, edge(tree.x) + 14}, tree.height);
}

/// The branches are one zigzag stroke from top to bottom.
void Landscape::drawPine(Point foot, double tall) {
    pen(rgb(0x121f29), 5);
    drag({foot, {foot.x + 1, foot.y - tall / 2}, {foot.x, foot.y - tall}});
    pen(rgb(0x162a33), 4.5);
    std::vector<Point> branches;
    const int tiers = int(tall / 9);
    for (int tier = 0; tier <= tiers; ++tier) {
        const double share = double(tier) / tiers;
        const double y = foot.y - tall + 4 + share * tall * 0.9;
        const double reach =
            (3 + tall * 0.19 * share) * (0.82 + 0.18 * std::sin(tier * 2.3 + tall));
        for (const double side : {-1.0, 1.0}) {
            branches.push_back({foot.x, y - 4});
            branches.push_back({foot.x + side * reach, y + 7});
            branches.push_back({foot.x + side * reach, y + 7});
        }
    }
    drag(branches);
}

void Landscape::drawBirds() {
    pen(rgb(0x2a2f52), 2.4);
    struct Bird {
        Point at;
        double span;
    };
    for (const Bird& bird : {Bird{{470, 168}, 30},
                             {{522, 142}, 24},
                             {{578, 176}, 34},
                             {{628, 150}, 20},
                             {{548, 208}, 22}}) {
        const auto [at, span] = bird;
        drag({{at.x - span, at.y - span * 0.25},
              {at.x - span * 0.55, at.y - span * 0.42},
              {at.x - span * 0.15, at.y - span * 0.1},
              {at.x, at.y + span * 0.08},
              {at.x + span * 0.15, at.y - span * 0.1},
              {at.x + span * 0.55, at.y - span * 0.42},
              {at.x + span, at.y - span * 0.25}});
    }
}

}  // namespace marlevo
