#include "apps/gallery/packages.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <unistd.h>

namespace gallery {
namespace {

std::vector<Package> Parse(const std::string& text) {
    std::istringstream database(text);
    return ParsePackages(database);
}

TEST(Packages, AreReadFromParagraphsAndOrderedByName) {
    const auto packages =
        Parse("Package: zlib\nStatus: install ok installed\nVersion: 1.2\nSection: libs\n"
              "Priority: required\nInstalled-Size: 170\nDescription: compression\n longer text\n"
              "\n"
              "Package: ant\nStatus: install ok installed\nVersion: 2\n");
    ASSERT_EQ(packages.size(), 2u);
    EXPECT_EQ(packages[0].name, "ant");
    EXPECT_EQ(packages[0].section, "unknown");
    EXPECT_EQ(packages[1], (Package{"zlib", "1.2", "libs", "required", "compression", 170}));
}

TEST(Packages, ThatAreNotInstalledAreLeftOut) {
    EXPECT_TRUE(Parse("Package: gone\nStatus: deinstall ok config-files\n").empty());
    EXPECT_TRUE(Parse("Package: half\nStatus: install ok half-installed\n").empty());
    EXPECT_TRUE(Parse("Status: install ok installed\nVersion: 1\n").empty());
}

TEST(Packages, KeysAreReadAtTheStartOfALineOnly) {
    const auto packages =
        Parse("Package: a\nStatus: install ok installed\n Version: 9\nVersions: 8\nVersion:7\n");
    ASSERT_EQ(packages.size(), 1u);
    EXPECT_EQ(packages[0].version, "7");
}

TEST(Packages, BrokenSizesAndBytesDoNoHarm) {
    using namespace std::string_literals; // the text holds a zero byte
    const auto packages = Parse("Package: a\xff\0b\nStatus: install ok installed\n"s +
                                "Installed-Size: 99999999999999999999\n\n\n\n:\nInstalled-Size");
    ASSERT_EQ(packages.size(), 1u);
    EXPECT_EQ(packages[0].kibibytes, 0);
}

TEST(Packages, WithoutADatabaseTheFilesOfAFolderStandInAndANoteSaysSo) {
    const auto folder =
        std::filesystem::path(testing::TempDir()) / ("packages_test" + std::to_string(getpid()));
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder / "sub");
    std::ofstream(folder / "b.txt") << std::string(3000, 'x');

    const auto collection = LoadCollection("/nonexistent/status", {"/nonexistent", folder.string()});
    EXPECT_THAT(collection.note, testing::HasSubstr("no package database at /nonexistent/status"));
    ASSERT_EQ(collection.packages.size(), 2u);
    EXPECT_EQ(collection.packages[0].section, "txt");
    EXPECT_EQ(collection.packages[0].kibibytes, 3);
    EXPECT_EQ(collection.packages[1].section, "folder");
}

TEST(Packages, WithNothingAtAllTheListIsEmptyAndSaysWhy) {
    const auto collection = LoadCollection("/nonexistent/status", {"/nonexistent"});
    EXPECT_TRUE(collection.packages.empty());
    EXPECT_EQ(collection.title, "Nothing to show");
}

TEST(Packages, SizesAreTold) {
    EXPECT_EQ(SizeText(0), "0 KiB");
    EXPECT_EQ(SizeText(1023), "1023 KiB");
    EXPECT_EQ(SizeText(1536), "1.5 MiB");
    EXPECT_EQ(SizeText(5 * 1024 * 1024 / 2), "2.5 GiB");
}

} // namespace
} // namespace gallery
