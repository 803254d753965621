#include "io/ReadFile.h"
#include "io/WriteFile.h"
#include "platform/WorkQueue.h"
#include "tests/io/SmallDisk.h"

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace marlevo;

namespace {

namespace fs = std::filesystem;
using testing::EndsWith;
using testing::HasSubstr;

const std::string oldText = "the old contents, a little longer than the new";

/// The error's text, empty if the file was written.
std::string errorOfWriting(const fs::path& file, std::string_view text) {
    const std::string_view pieces[] = {text.substr(0, text.size() / 3), "",
                                       text.substr(text.size() / 3)};
    const auto written = writeWholeFile(file, pieces);
    return written ? "" : written.error().text;
}

std::string errorOfReading(const fs::path& file) {
    const auto contents = readWholeFile(file);
    return contents ? "" : contents.error().text;
}

TEST(WriteWholeFile, replacesShorterAndLongerContentsWhole) {
    const TemporaryFolder folder;
    const fs::path file = folder / "drawing";
    for (const std::string& text : {oldText, std::string(300'000, 'x'), std::string("short"),
                                    std::string(), std::string("again")}) {
        ASSERT_EQ(errorOfWriting(file, text), "");
        EXPECT_EQ(textOf(file), text);
        EXPECT_EQ(readWholeFile(file)->text(), text);
    }
}

TEST(WriteWholeFile, keepsLinksOwnerAndPermissionsOfTheFile) {
    const TemporaryFolder folder;
    const fs::path file = folder / "drawing";
    writeText(file, oldText);
    fs::permissions(file, fs::perms(0640));
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(file.c_str(), 12, 34), 0);
    }
    fs::create_hard_link(file, folder / "hard");
    fs::create_symlink("drawing", folder / "soft");
    struct stat before {};
    ASSERT_EQ(::stat(file.c_str(), &before), 0);

    ASSERT_EQ(errorOfWriting(folder / "soft", "new"), "");

    EXPECT_TRUE(fs::is_symlink(folder / "soft"));
    EXPECT_EQ(textOf(folder / "hard"), "new");
    struct stat after {};
    ASSERT_EQ(::stat(file.c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 3);
}

TEST(WriteWholeFile, createsTheMissingTargetOfALink) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/second", folder / "first");
    fs::create_symlink("target", folder / "sub/second");
    ASSERT_EQ(errorOfWriting(folder / "first", "new"), "");
    EXPECT_EQ(textOf(folder / "sub/target"), "new");
}

TEST(WriteWholeFile, leavesTheOldContentsOnAFullDisk) {
    const SmallDisk disk;
    if (!disk.isMounted()) GTEST_SKIP() << "may not mount a file system";
    const fs::path file = disk / "drawing";
    writeText(file, oldText);
    writeText(disk / "filler", std::string(900'000, 'f'));

    EXPECT_THAT(errorOfWriting(file, std::string(500'000, 'n')),
                EndsWith("/drawing: No space left on device"));
    EXPECT_EQ(textOf(file), oldText);
    EXPECT_NE(errorOfWriting(disk / "fresh", std::string(500'000, 'n')), "");
    EXPECT_FALSE(fs::exists(disk / "fresh"));

    fs::remove(disk / "filler");
    EXPECT_EQ(errorOfWriting(file, std::string(500'000, 'n')), "") << "the room was not given back";
}

TEST(WriteWholeFile, leavesTheOldContentsAtALimitOfSize) {
    const TemporaryFolder folder;
    const fs::path file = folder / "drawing";
    writeText(file, oldText);
    fs::create_symlink("fresh", folder / "link");
    const FileSizeLimit limit(100'000);
    EXPECT_THAT(errorOfWriting(file, std::string(100'001, 'n')), HasSubstr("File too large"));
    EXPECT_EQ(textOf(file), oldText);
    EXPECT_NE(errorOfWriting(folder / "link", std::string(100'001, 'n')), "");
    EXPECT_FALSE(fs::exists(folder / "fresh"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST(WholeFile, refusesFoldersPipesAndDevicesAtOnce) {
    const TemporaryFolder folder;
    const fs::path pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const std::string folderName = folder.path().string();
    EXPECT_EQ(errorOfWriting(folder.path(), "new"), folderName + ": Is a directory");
    EXPECT_EQ(errorOfReading(folder.path()), folderName + ": Is a directory");
    for (const fs::path& file : {pipe, fs::path("/dev/null")}) {
        EXPECT_EQ(errorOfWriting(file, "new"), file.string() + ": Not a regular file");
        EXPECT_EQ(errorOfReading(file), file.string() + ": Not a regular file");
    }
    EXPECT_THAT(errorOfWriting(folder / "gone/file", "new"),
                EndsWith("/gone/file: No such file or directory"));
    EXPECT_THAT(errorOfReading(folder / "gone"), EndsWith("/gone: No such file or directory"));
}

TEST(ReadWholeFile, reportsAFileTooLargeForMemory) {
#ifdef MARLEVO_SANITIZED
    GTEST_SKIP() << "the sanitizer ends the program instead";
#endif
    const TemporaryFolder folder;
    writeText(folder / "huge", "");
    std::error_code error;
    fs::resize_file(folder / "huge", std::uintmax_t{1} << 43, error);
    if (error) GTEST_SKIP() << "the file system has no sparse files of this size";
    EXPECT_THAT(errorOfReading(folder / "huge"), EndsWith("Cannot allocate memory"));
}

TEST(FlushBehind, flushesInOrderBeforeTheQueueEnds) {
    const TemporaryFolder folder;
    std::vector<std::string> failures;
    {
        WorkQueue queue;
        const auto report = [&](const Failure& failure) { failures.push_back(failure.text); };
        const std::string_view piece = "new";
        auto good = writeWholeFile(folder / "good", std::span(&piece, 1));
        flushBehind(&queue, std::move(*good), report);
        // The end of a pipe cannot be flushed.
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const FileDescriptor other(ends[1]);
        flushBehind(&queue, WrittenFile("/bad", FileDescriptor(ends[0])), report);
        flushBehind(&queue, WrittenFile("/worse", FileDescriptor()), report);
    }
    EXPECT_THAT(failures,
                testing::ElementsAre("/bad: Invalid argument", "/worse: Bad file descriptor"));
}

}  // namespace
