#pragma once

#include "platform/ItemProvider.h"

#include <memory>
#include <vector>

class QMimeData;

namespace marlevo {

/// The items of a drag or drop: one for each local file, or, without files, one for the image that
/// the data itself contains (from a browser or an image editor). The type of a file is that of its
/// name, and that of its contents only where the name has none. The files of a drop are read one
/// after the other on a thread of their own, which the program's end does not wait for.
std::vector<std::unique_ptr<ItemProvider>> itemProviders(const QMimeData& data);

}  // namespace marlevo
