#pragma once

#include <QPoint>

#include <cstdint>
#include <vector>

namespace marlevo {

/// A pause, then one act of the mouse at a place on the screen.
struct HandAct {
    enum class Kind : std::uint8_t { move, press, release };

    /// Time between two events of a moving mouse.
    static constexpr std::int32_t usualPause = 12'000;

    Kind kind = Kind::move;
    std::uint8_t button = 1;  ///< X's number; 4 and 5 are the wheel
    std::int16_t x = 0;       ///< device pixels of the screen
    std::int16_t y = 0;
    std::int32_t pause = usualPause;  ///< before the act, in microseconds
};

/// Moves the mouse of the X server from another process, so that the measured program gets its
/// events from the server and spends time only on handling them.
///
/// Must be created before the application object, since it forks.
class Hand {
public:
    Hand();
    ~Hand();
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    /// Runs the event loop until all acts are done. Needs the application object.
    void perform(const std::vector<HandAct>& acts);

private:
    int toHand_ = -1;
    int fromHand_ = -1;
    int process_ = -1;
};

/// A drag: acts that move to the places, with a press at the first and a release at the last.
std::vector<HandAct> dragThrough(const std::vector<QPoint>& way);

/// A press and a release.
std::vector<HandAct> clickAt(QPoint place);

}  // namespace marlevo
