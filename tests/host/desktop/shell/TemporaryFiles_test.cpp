#include "tvok/host/desktop/shell/TemporaryFiles.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <unistd.h>

namespace tvok::soft {
namespace {

namespace fs = std::filesystem;

class TemporaryFilesTest : public testing::Test {
protected:
    TemporaryFilesTest() { fs::create_directories(folder); }
    ~TemporaryFilesTest() override { fs::remove_all(folder); }

    bool Create(std::string_view prefix, std::string_view extension) {
        return files->CreateTemporaryFile(folder.string(), prefix, extension, path);
    }

    const fs::path folder =
        fs::path(testing::TempDir()) / ("tvok_temporary_files_test" + std::to_string(getpid()));
    std::unique_ptr<host::TemporaryFiles> files = MakeTemporaryFiles();
    std::string path = "as before";
};

TEST_F(TemporaryFilesTest, AFileIsEmptyAndItsOwnersAlone) {
    ASSERT_TRUE(Create("buf", "tmp"));
    EXPECT_EQ(fs::file_size(path), 0u);
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::path(path).parent_path(), folder);
    EXPECT_TRUE(fs::path(path).filename().string().starts_with("buf"));
    EXPECT_EQ(fs::path(path).extension(), ".tmp");
}

TEST_F(TemporaryFilesTest, EveryFileIsANewOne) {
    std::set<std::string> names;
    for (int i = 0; i < 50; ++i) {
        ASSERT_TRUE(Create("", ".x"));
        names.insert(path);
    }
    EXPECT_EQ(names.size(), 50u);
}

TEST_F(TemporaryFilesTest, AnEmptyFolderIsTheSystemsTemporaryFolder) {
    ASSERT_TRUE(files->CreateTemporaryFile("", "tvok", "", path));
    EXPECT_EQ(fs::path(path).parent_path(), fs::path(fs::temp_directory_path() / "x").parent_path());
    EXPECT_TRUE(fs::exists(path));
    fs::remove(path);
}

TEST_F(TemporaryFilesTest, WhatCannotBeCreatedIsFalseAndLeavesThePath) {
    EXPECT_FALSE(files->CreateTemporaryFile((folder / "missing").string(), "a", "b", path));
    std::ofstream(folder / "file").put('x');
    EXPECT_FALSE(files->CreateTemporaryFile((folder / "file").string(), "a", "b", path));
    EXPECT_FALSE(Create("../a", "b"));
    EXPECT_FALSE(Create("a", "b/c"));
    EXPECT_FALSE(Create(std::string_view("a\0b", 3), "c"));
    EXPECT_EQ(path, "as before");
}

} // namespace
} // namespace tvok::soft
