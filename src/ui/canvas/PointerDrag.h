#pragma once

#include <QPointF>

#include <optional>

namespace marlevo {

/// Follows one press of the primary button from its beginning to its end, and knows whether it was
/// a click. Positions in any one frame of view points.
class PointerDrag {
public:
    /// A press and release within this distance, without leaving it meanwhile, is a click.
    static constexpr double clickTolerance = 4;

    bool isActive() const { return start_.has_value(); }

    void press(QPointF at);
    void moveTo(QPointF position);

    /// Ends the drag; says whether it was a click.
    bool release();

    /// The way from the press to `position`; nothing without a drag.
    QPointF translationTo(QPointF position) const;

private:
    std::optional<QPointF> start_;
    bool maybeClick_ = false;
};

}  // namespace marlevo
