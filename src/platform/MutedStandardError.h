#pragma once

namespace marlevo {

/// As long as an object of this class exists, what its thread writes to the C library's `stderr` is
/// dropped. For libraries that print their errors there. Other threads are not affected.
///
/// The first object of the program replaces `stderr`, so it must be made before there are threads
/// that use it.
class MutedStandardError {
public:
    MutedStandardError();
    ~MutedStandardError();
    MutedStandardError(const MutedStandardError&) = delete;
    MutedStandardError& operator=(const MutedStandardError&) = delete;
};

}  // namespace marlevo
