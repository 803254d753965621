#pragma once

class QPushButton;

namespace marlevo {

/// Gives a button the look of the one that carries on: white on blue while it is enabled.
void makeProminent(QPushButton& button);

}  // namespace marlevo
