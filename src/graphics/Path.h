#pragma once

#include "graphics/Point.h"
#include "graphics/Rect.h"

#include <vector>

namespace marlevo {

/// An ordered list of path elements in one coordinate frame.
class Path {
public:
    enum class Kind : unsigned char {
        move,       ///< starts a sub-path at `point`
        line,       ///< straight line to `point`
        quadCurve,  ///< quadratic Bézier curve to `point`, bending towards `control`
        rect,       ///< a closed rectangle: origin `point`, size `control`
        ellipse,    ///< a closed ellipse inscribed in the rectangle: origin `point`, size `control`
    };

    struct Element {
        Kind kind;
        Point point;
        Point control;

        /// The rectangle of a `rect` or `ellipse` element.
        Rect rect() const { return {point, {control.x, control.y}}; }

        friend bool operator==(const Element&, const Element&) = default;
    };

    void move(Point to) { elements_.push_back({Kind::move, to, {}}); }
    void addLine(Point to) { elements_.push_back({Kind::line, to, {}}); }
    void addQuadCurve(Point to, Point control) {
        elements_.push_back({Kind::quadCurve, to, control});
    }
    void addRect(Rect r) {
        elements_.push_back({Kind::rect, r.origin, {r.size.width, r.size.height}});
    }
    void addEllipse(Rect r) {
        elements_.push_back({Kind::ellipse, r.origin, {r.size.width, r.size.height}});
    }

    const std::vector<Element>& elements() const { return elements_; }
    bool isEmpty() const { return elements_.empty(); }
    void clear() { elements_.clear(); }
    void reserve(std::size_t count) { elements_.reserve(count); }

    friend bool operator==(const Path&, const Path&) = default;

private:
    std::vector<Element> elements_;
};

}  // namespace marlevo
