#pragma once

namespace marlevo {

/// Maps the drawing frame to the device plane: device = (x · scaleX + originX, y · scaleY +
/// originY). Device rows are counted downwards.
struct DeviceFrame {
    double scaleX = 1;
    double scaleY = 1;
    double originX = 0;
    double originY = 0;

    /// The frame of a picture `height` pixels high: origin at its bottom left, y upwards.
    static DeviceFrame yUp(double height) { return {1, -1, 0, height}; }
    /// Origin at the top left, y downwards, `scale` device pixels a unit.
    static DeviceFrame yDown(double scale) { return {scale, scale, 0, 0}; }
};

}  // namespace marlevo
