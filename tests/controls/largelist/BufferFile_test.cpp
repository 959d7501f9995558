#include "tvok/controls/largelist/BufferFile.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "tvok/host/desktop/shell/TemporaryFiles.h"
#include "tvok/records/Error.h"

namespace tvok {
namespace {

class NoFiles : public host::TemporaryFiles {
public:
    bool CreateTemporaryFile(std::string_view, std::string_view, std::string_view, std::string&) override {
        return false;
    }
};

/// Gives a path that can be opened and never written.
class FullDisk : public host::TemporaryFiles {
public:
    bool CreateTemporaryFile(std::string_view, std::string_view, std::string_view,
                             std::string& path) override {
        path = link_ = (std::filesystem::temp_directory_path() / "tvok-full-disk").string();
        std::filesystem::remove(link_);
        std::filesystem::create_symlink("/dev/full", link_);
        return true;
    }

private:
    std::string link_;
};

class BufferFileTest : public testing::Test {
protected:
    std::unique_ptr<host::TemporaryFiles> service = soft::MakeTemporaryFiles();
    BufferFile file;
};

TEST_F(BufferFileTest, KeepsAValueForEachRowAtItsFourLittleEndianBytes) {
    file.Create(*service, 10);
    file.Write(1, 1);
    file.Write(3, -2);
    EXPECT_EQ(file.Read(1), 1);
    EXPECT_EQ(file.Read(3), -2);
    std::ifstream bytes(file.Path(), std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(bytes)), std::istreambuf_iterator<char>());
    EXPECT_EQ(content, std::string("\1\0\0\0\0\0\0\0\xFE\xFF\xFF\xFF", 12));
}

TEST_F(BufferFileTest, RowsThatWereNeverWrittenReadAsZero) {
    file.Create(*service, 10);
    file.Write(5, 7);
    EXPECT_EQ(file.Read(2), 0);
    EXPECT_EQ(file.Read(1000), 0);
    EXPECT_EQ(file.Read(5), 7);
}

TEST_F(BufferFileTest, RowsOfOnePlaceGoToTheFileEachTime) {
    file.Create(*service, 10);
    file.Write(7, 70);
    file.Write(17, 170);
    const std::uint64_t before = file.FileReads();
    EXPECT_EQ(file.Read(7), 70);
    EXPECT_EQ(file.Read(17), 170);
    EXPECT_EQ(file.Read(7), 70);
    EXPECT_EQ(file.FileReads() - before, 3U);
    EXPECT_EQ(file.Read(7), 70);
    EXPECT_EQ(file.FileReads() - before, 3U);
}

TEST_F(BufferFileTest, TheHighestPlaceBelongsToRowsOneBelowAMultipleOfTheSize) {
    file.Create(*service, 10);
    file.Write(9, 90);
    file.Write(10, 100);
    const std::uint64_t before = file.FileReads();
    EXPECT_EQ(file.Read(9), 90);
    EXPECT_EQ(file.Read(10), 100);
    EXPECT_EQ(file.FileReads(), before);
}

TEST_F(BufferFileTest, ANewFileReplacesTheOldOneAndOnlyItsOwnerMayUseIt) {
    file.Create(*service, 10);
    const std::string first = file.Path();
    file.Create(*service, 10);
    EXPECT_FALSE(std::filesystem::exists(first));
    const auto rights = std::filesystem::status(file.Path()).permissions();
    EXPECT_EQ(rights, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(BufferFileTest, ASmallerCacheKeepsThePairsOfTheFileThatIsGone) {
    file.Create(*service, 100);
    file.Write(3, 33);
    file.Create(*service, 50);
    EXPECT_EQ(file.CacheSize(), 100);
    EXPECT_EQ(file.Read(3), 33);
    file.ClearCache();
    EXPECT_EQ(file.Read(3), 0);
}

TEST_F(BufferFileTest, ALargerCacheStartsEmpty) {
    file.Create(*service, 10);
    file.Write(3, 33);
    file.Create(*service, 20);
    EXPECT_EQ(file.CacheSize(), 20);
    EXPECT_EQ(file.Read(3), 0);
}

TEST_F(BufferFileTest, WithoutATemporaryFileThereIsNone) {
    NoFiles none;
    file.Create(none, 10);
    EXPECT_FALSE(file.IsOpen());
}

TEST_F(BufferFileTest, AFailedWriteIsAnErrorAndLeavesTheCache) {
    FullDisk full;
    file.Create(full, 10);
    ASSERT_TRUE(file.IsOpen());
    EXPECT_THROW(file.Write(3, 33), FileError);
    EXPECT_EQ(file.Read(3), 0); // from the device, not from the cache
}

TEST_F(BufferFileTest, ClosingDeletesTheFile) {
    file.Create(*service, 10);
    const std::string path = file.Path();
    ASSERT_TRUE(std::filesystem::exists(path));
    file.Close();
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_FALSE(file.IsOpen());
}

TEST_F(BufferFileTest, WorksOnWhenTheFileIsRemovedUnderIt) {
    file.Create(*service, 10);
    std::filesystem::remove(file.Path());
    file.Write(4, 44);
    file.ClearCache();
    EXPECT_EQ(file.Read(4), 44);
}

} // namespace
} // namespace tvok
