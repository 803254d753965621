#pragma once

#include "platform/ItemProvider.h"

#include <memory>
#include <vector>

class QMimeData;

namespace marlevo {

/// The items of a drag or drop: one for each local file, or, without files, one for the image that
/// the data itself holds (from a browser or an image editor). What a file is goes by its name, and
/// by its contents only where the name says nothing. Files are read on threads of their own.
std::vector<std::unique_ptr<ItemProvider>> itemProviders(const QMimeData& data);

}  // namespace marlevo
