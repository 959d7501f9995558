/// Faults of the buffer file, seen by the host of a `qRosterex`; and handlers that do the worst while a row
/// is painted.
#include "tests/support/FakeLargeList.h"

#include <csignal>
#include <cstdlib>

#include <sys/resource.h>

#include "tvok/host/desktop/shell/TemporaryFiles.h"

namespace tvok::test {
namespace {

/// Gives this path, whatever is there.
class PathOf : public host::TemporaryFiles {
public:
    explicit PathOf(std::filesystem::path path) : path_(std::move(path)) {}
    bool CreateTemporaryFile(std::string_view, std::string_view, std::string_view,
                             std::string& path) override {
        path = path_.string();
        return true;
    }

private:
    std::filesystem::path path_;
};

/// A link in the test's own folder, so that deleting the "file" deletes the link.
PathOf LinkTo(const char* target) {
    const auto link = std::filesystem::path(testing::TempDir()) / "large_list_link";
    std::filesystem::remove(link);
    std::filesystem::create_symlink(target, link);
    return PathOf(link);
}

/// As long as it lives no file grows beyond so many bytes, as on a disk that is full.
class FullBeyond {
public:
    explicit FullBeyond(rlim_t bytes) : signalBefore_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullBeyond() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }
    FullBeyond(const FullBeyond&) = delete;
    FullBeyond& operator=(const FullBeyond&) = delete;

private:
    rlimit before_{};
    void (*signalBefore_)(int);
};

/// Overwrites the record of a row behind the list's back.
void Forge(const std::string& path, std::int32_t row, char value) {
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp((row - 1) * 4);
    const char bytes[4] = {value, 0, 0, 0};
    file.write(bytes, 4);
}

TEST(LargeListFile, RowsOfOneCachePlaceAreReadFromTheFileEachTime) {
    FakeLargeList f({}, 20);
    f.list.FileBufCreate(10);
    f.list.FileBufValue(7, 70);
    f.list.FileBufValue(17, 170);
    const std::string path = f.services.files.paths.back();
    int reads = 0;
    const auto read = [&](std::int32_t row) { // a read that reaches the file sees the forged value
        const char mark = static_cast<char>(reads + 1);
        Forge(path, row, mark);
        if (f.list.FileBufValue(row) == mark) ++reads;
    };
    read(7);
    read(17);
    read(7);
    EXPECT_EQ(reads, 3);
    read(7);
    EXPECT_EQ(reads, 3);
    read(8);
    EXPECT_EQ(reads, 4);
}

TEST(LargeListFile, ScrollingByRowsReadsNoValueTwiceWhereThePageFitsTheCache) {
    FakeLargeList f({}, 100);
    f.list.FileBufCreate(10);
    for (std::int32_t row = 1; row <= 100; ++row) f.list.FileBufValue(row, row);
    f.fill = [&](std::int32_t& row, qrosterdata& record) {
        record = {.text = std::to_string(f.list.FileBufValue(row))};
    };
    f.list.PaintAll();
    const std::string path = f.services.files.paths.back();
    for (std::int32_t row = 1; row <= 5; ++row) Forge(path, row, 99);
    f.Forget();
    f.list.PaintAll();
    const auto texts = f.log().Named("ExtTextOutA");
    ASSERT_EQ(texts.size(), 5u);
    for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(texts[i].text, std::to_string(i + 1));
}

TEST(LargeListFile, WithoutATemporaryFolderTheListWorksQuietlyWithoutAFile) {
    const char* folder = std::getenv("TMPDIR");
    const std::string before = folder != nullptr ? folder : "";
    setenv("TMPDIR", "/nowhere/at/all", 1);
    FakeLargeList f({}, 3);
    const auto real = soft::MakeTemporaryFiles();
    f.services.other = real.get();
    EXPECT_NO_THROW(f.list.FileBufCreate());
    folder != nullptr ? setenv("TMPDIR", before.c_str(), 1) : unsetenv("TMPDIR");
    EXPECT_NO_THROW(f.list.AddItemTop(5));
    EXPECT_NO_THROW(f.list.FileBufValue(1, 5));
    EXPECT_EQ(f.list.Count(), 4);
    EXPECT_EQ(f.list.FileBufValue(1), 0);
    EXPECT_EQ(f.list.FileBufValue(4), 0);
    f.list.FileBufCreate(); // and the next file is as good as any
    f.list.FileBufValue(4, 44);
    EXPECT_EQ(f.list.FileBufValue(4), 44);
}

TEST(LargeListFile, APathThatCannotBeOpenedIsNoFileAndNoError) {
    FakeLargeList f({}, 3);
    PathOf nowhere("/nowhere/at/all.tmp");
    f.services.other = &nowhere;
    EXPECT_NO_THROW(f.list.FileBufCreate());
    f.list.AddItemButtom(7);
    EXPECT_EQ(f.list.FileBufValue(4), 0);
    EXPECT_NO_THROW(f.list.Terminate());
}

TEST(LargeListFile, AServiceThatOnlyNamesTheFileIsEnough) {
    const auto path = std::filesystem::path(testing::TempDir()) / "large_list_named_only.tmp";
    std::filesystem::remove(path);
    FakeLargeList f({}, 3);
    PathOf named(path);
    f.services.other = &named;
    f.list.FileBufCreate();
    f.list.FileBufValue(3, -3);
    EXPECT_EQ(f.list.FileBufValue(3), -3);
    EXPECT_EQ(std::filesystem::file_size(path), 12u);
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    f.list.Terminate();
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(LargeListFile, AFullDeviceIsAnErrorOfEachAddAndTheListGoesOn) {
    FakeLargeList f({}, 100);
    PathOf full = LinkTo("/dev/full");
    f.services.other = &full;
    f.list.FileBufCreate();
    f.hook().ScrollValue(f.hook().ScrollMax());
    EXPECT_THROW(f.list.AddItemButtom(7), FileError);
    EXPECT_EQ(f.list.Count(), 101) << "the row is counted before its value is written";
    EXPECT_THROW(f.list.FileBufValue(5, 1), FileError);
    f.list.BufAddItemOnly(true);
    EXPECT_THROW(f.list.AddItemButtom(7), FileError);
    f.list.BufAddItemOnly(false);
    f.services.other = nullptr;
    f.list.FileBufCreate();
    f.list.Refresh();
    EXPECT_EQ(f.list.Count(), 102);
    EXPECT_EQ(f.hook().ScrollMax(), 97);
    f.hook().ScrollValue(97);
    f.Forget();
    f.list.AddItemButtom(9);
    EXPECT_EQ(f.list.FileBufValue(103), 9);
    EXPECT_EQ(f.TakeAsked(), (Rows{103}));
}

TEST(LargeListFile, AWriteOnAFullDiskKeepsTheCachedPairOfItsPlace) {
    FakeLargeList f({}, 200);
    f.list.FileBufCreate(10);
    f.list.FileBufValue(10, 100);
    Forge(f.services.files.paths.back(), 10, 5); // what only a read from the file would give
    bool refused = false;
    {
        const FullBeyond disk(400);
        try {
            f.list.FileBufValue(110, 1); // the same place of the cache
        } catch (const FileError&) {
            refused = true;
        }
    }
    EXPECT_TRUE(refused);
    EXPECT_EQ(f.list.FileBufValue(10), 100) << "from the pair, which the failed write left";
    EXPECT_EQ(f.list.FileBufValue(110), 0);
    f.list.FileBufValue(110, 11);
    EXPECT_EQ(f.list.FileBufValue(110), 11);
}

TEST(LargeListFile, AFileThatIsRemovedOrCutUnderTheListGoesOn) {
    FakeLargeList f({}, 50);
    f.list.FileBufCreate(10);
    for (std::int32_t row = 1; row <= 50; ++row) f.list.FileBufValue(row, row * 1000 + 7);
    const std::string path = f.services.files.paths.back();
    std::filesystem::resize_file(path, 10); // two records and half of the third
    EXPECT_EQ(f.list.FileBufValue(2), 2007);
    EXPECT_EQ(f.list.FileBufValue(3), 0) << "a record that is not whole is none";
    EXPECT_EQ(f.list.FileBufValue(20), 0);
    std::filesystem::remove(path);
    f.list.FileBufValue(20, 21);
    EXPECT_EQ(f.list.FileBufValue(30), 0);
    EXPECT_EQ(f.list.FileBufValue(20), 21);
    EXPECT_NO_THROW(f.list.FileBufCreate());
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_NO_THROW(f.list.Terminate());
}

TEST(LargeListFile, AReadThatFailsIsAnErrorToTheHost) {
    FakeLargeList f({}, 3);
    PathOf unreadable = LinkTo("/proc/self/mem"); // nothing is mapped at its beginning
    f.services.other = &unreadable;
    f.list.FileBufCreate();
    EXPECT_THROW(f.list.FileBufValue(1), FileError);
    EXPECT_THROW(f.list.FileBufValue(1), FileError) << "and no pair was made of it";
    f.services.other = nullptr;
    f.list.FileBufCreate();
    EXPECT_EQ(f.list.FileBufValue(1), 0);
}

TEST(LargeListFile, ValuesOfRowsBeyondFourGigabytesHaveTheirPlace) {
    constexpr std::int32_t most = 2147483647;
    FakeLargeList f({}, most);
    f.list.FileBufCreate(10);
    f.list.FileBufValue(most, 8);
    f.list.FileBufValue(1073741824, 4);
    f.list.FileBufValue(1073741825, 5); // where 32-bit offsets would begin again
    f.list.FileBufValue(1, 1);
    f.list.ClearItemData();
    for (std::int32_t row = 2; row <= 11; ++row) EXPECT_EQ(f.list.FileBufValue(row), 0);
    EXPECT_EQ(f.list.FileBufValue(most), 8);
    EXPECT_EQ(f.list.FileBufValue(1073741824), 4);
    EXPECT_EQ(f.list.FileBufValue(1073741825), 5);
    EXPECT_EQ(f.list.FileBufValue(1), 1);
    EXPECT_EQ(std::filesystem::file_size(f.services.files.paths.back()), std::uintmax_t{most} * 4);
}

} // namespace
} // namespace tvok::test
