#pragma once

#include <QPoint>

#include <cstdint>
#include <vector>

namespace marlevo {

/// What a hand does with the mouse: a pause, then one act at a place on the screen.
struct HandAct {
    enum class Kind : std::uint8_t { move, press, release };

    /// Between two events of a mouse in motion.
    static constexpr std::int32_t usualPause = 12'000;

    Kind kind = Kind::move;
    std::uint8_t button = 1;  ///< as X numbers them; 4 and 5 are the wheel
    std::int16_t x = 0;       ///< device pixels of the screen
    std::int16_t y = 0;
    std::int32_t pause = usualPause;  ///< before the act, in microseconds
};

/// Moves the mouse of the X server from a process of its own, so that the program under measurement
/// gets its events from the server and pays for nothing but handling them.
///
/// To be made before the application, since it forks.
class Hand {
public:
    Hand();
    ~Hand();
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    /// Runs the event loop until the hand has done everything. There must be an application.
    void perform(const std::vector<HandAct>& acts);

private:
    int toHand_ = -1;
    int fromHand_ = -1;
    int process_ = -1;
};

/// Acts that move to places, the first one being pressed and the last one released.
std::vector<HandAct> dragThrough(const std::vector<QPoint>& way);

/// A press and a release.
std::vector<HandAct> clickAt(QPoint place);

}  // namespace marlevo
