#include "io/FileReplacement.h"

#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <linux/falloc.h>
#include <map>
#include <set>

using namespace marlevo;

namespace {

using testing::ElementsAre;

/// Records each call as "<name> <first byte>+<length>", then makes it, or fails if set so.
class RecordedCalls : public FileCalls {
public:
    int fallocate(int file, int mode, off_t begin, off_t length) const override {
        switch (mode) {
        case 0:
            if (fails("reserve", begin, length)) return -1;
            FileCalls::fallocate(file, mode, begin, length);  // may be unsupported here
            return 0;
        case FALLOC_FL_UNSHARE_RANGE:
            return fails("unshare", begin, length) ? -1 : 0;
        case FALLOC_FL_KEEP_SIZE:
            return fails("spare", begin, length) ? -1 : 0;
        default:
            return fails("give back", begin, length) ? -1 : 0;
        }
    }
    ssize_t pwrite(int file, const char* from, std::size_t count, off_t at) const override {
        if (fails("write", at, static_cast<off_t>(count))) return -1;
        return FileCalls::pwrite(file, from, std::min(count, longestWrite), at);
    }
    int fsync(int file) const override {
        return fails("flush", 0, 0) ? -1 : FileCalls::fsync(file);
    }
    int ftruncate(int file, off_t length) const override {
        return fails("truncate", 0, length) ? -1 : FileCalls::ftruncate(file, length);
    }
    bool copiesOnWrite(int /*file*/) const override { return isCopyingOnWrite; }

    std::map<std::string, int> errors;          ///< error number by name of the call
    mutable std::set<std::string> interrupted;  ///< names of calls of which one fails with EINTR
    std::size_t longestWrite = 1000;
    bool isCopyingOnWrite = false;
    mutable std::vector<std::string> lines;

private:
    bool fails(const std::string& name, off_t begin, off_t length) const {
        lines.push_back(name + " " + std::to_string(begin) + "+" + std::to_string(length));
        const bool isInterrupted = interrupted.erase(name) > 0;
        const auto error = errors.find(name);
        if (isInterrupted)
            errno = EINTR;
        else if (error != errors.end())
            errno = error->second;
        return isInterrupted || error != errors.end();
    }
};

class FileReplacing : public testing::Test {
protected:
    FileReplacing() { writeText(file, "012345"); }

    std::error_code write(std::string_view text) {
        FileReplacement replacement(calls);
        if (replacement.open(file)) return std::make_error_code(std::errc::io_error);
        const std::string_view pieces[] = {text.substr(0, 2), "", text.substr(2)};
        return replacement.write(pieces);
    }

    TemporaryFolder folder;
    std::filesystem::path file = folder / "drawing";
    RecordedCalls calls;
};

TEST_F(FileReplacing, WritesThePartBehindTheOldEndFirst) {
    EXPECT_FALSE(write("abcdefghij"));
    EXPECT_THAT(calls.lines,
                ElementsAre("reserve 0+10", "unshare 0+6", "write 6+4", "write 0+2", "write 2+4"));
    EXPECT_EQ(textOf(file), "abcdefghij");

    calls.lines.clear();
    EXPECT_FALSE(write("ABCD"));
    EXPECT_THAT(calls.lines, ElementsAre("reserve 0+4", "unshare 0+4", "write 0+2", "write 2+2",
                                         "truncate 0+4"));
    EXPECT_EQ(textOf(file), "ABCD");
}

TEST_F(FileReplacing, FlushesTheGrowthBeforeItOverwritesWhereNoRoomCanBeReserved) {
    calls.errors["reserve"] = EOPNOTSUPP;
    EXPECT_FALSE(write("abcdefghij"));
    EXPECT_THAT(calls.lines,
                ElementsAre("reserve 0+10", "write 6+4", "flush 0+0", "write 0+2", "write 2+4"));
    EXPECT_EQ(textOf(file), "abcdefghij");
}

TEST_F(FileReplacing, HoldsRoomForASecondCopyWhereOverwritingTakesIt) {
    calls.isCopyingOnWrite = true;
    EXPECT_FALSE(write("abcdefghij"));
    EXPECT_THAT(calls.lines,
                ElementsAre("reserve 0+10", "unshare 0+6", "spare 10+33554438",
                            "give back 10+33554438", "write 6+4", "write 0+2", "write 2+4"));
}

TEST_F(FileReplacing, LeavesTheOldContentsWhenACallBeforeTheFirstOldByteFails) {
    calls.isCopyingOnWrite = true;
    const std::map<std::string, int> failures[] = {
        {{"reserve", ENOSPC}},
        {{"unshare", ENOSPC}},
        {{"spare", ENOSPC}},
        {{"give back", EIO}},
        {{"write", EIO}},
        {{"reserve", EOPNOTSUPP}, {"write", ENOSPC}},
        {{"reserve", EOPNOTSUPP}, {"flush", EIO}},
    };
    for (const auto& failure : failures) {
        calls.lines.clear();
        calls.errors = failure;
        EXPECT_TRUE(write("abcdefghij")) << failure.begin()->first;
        EXPECT_THAT(calls.lines.back(), "truncate 0+6");
        EXPECT_THAT(calls.lines, testing::Not(testing::Contains(testing::StartsWith("write 0+"))));
        EXPECT_EQ(textOf(file), "012345") << failure.begin()->first;
    }
}

TEST_F(FileReplacing, RepeatsInterruptedCallsAndContinuesShortWrites) {
    calls.errors["unshare"] = EOPNOTSUPP;
    calls.interrupted = {"reserve", "unshare", "write", "truncate"};
    calls.longestWrite = 1;
    EXPECT_FALSE(write("abcde"));
    EXPECT_EQ(textOf(file), "abcde");
    EXPECT_TRUE(calls.interrupted.empty());
}

}  // namespace
