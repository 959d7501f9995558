#include "tvok/host/desktop/FormFile.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>

#include "tests/support/FakeComponent.h"
#include "tests/support/TestDesktop.h"
#include "tvok/host/desktop/ControlTypes.h"
#include "tvok/host/desktop/TextBox.h"
#include "tvok/records/Error.h"

namespace tvok::soft {
namespace {

using testing::HasSubstr;

/// Reading tries settings on controls, which need surroundings.
class FormFileTest : public testing::Test {
protected:
    std::string ErrorOf(const std::string& text) const {
        try {
            ParseFormFile(text, "stock.toml");
        } catch (const FileError& error) {
            return error.what();
        }
        return "no error";
    }
    /// A form with one qRoster; `settings` start at line 6.
    std::string ErrorOfSettings(const std::string& settings) const {
        return ErrorOf("[form]\n[[control]]\ntype = \"qRoster\"\nname = \"a\"\n[control.settings]\n" +
                       settings);
    }

    test::FakeComponent surroundings{true, 100, 100};
};

TEST_F(FormFileTest, AFileThatWasWrittenReadsTheSame) {
    FormFile file{"a \"caption\" \\ with \n\t\x01 and \xE4\xB8\xAD", 480, 360, {}};
    FormFileControl list{"qRoster", "list 1", {-8, 8, 464, 344}, {}};
    list.settings.Put("xn", std::int32_t{3});
    list.settings.Put("SelectedColor", SystemColor(13));
    list.settings.Put("GridLineColor", std::int32_t{0x00FF8000});
    list.settings.Put("HotTrack", true);
    list.settings.Put("TabStopSettingStr", std::string("40,60"));
    list.settings.Put("Font", host::FontValue{"DejaVu \"Sans\"", 10.25f, true, false, true, false});
    file.controls.push_back(list);
    file.controls.push_back({"TextBox", "text", {}, {}});

    const std::string text = FormFileText(file);
    const FormFile again = ParseFormFile(text, "again");
    EXPECT_EQ(again.caption, file.caption);
    EXPECT_EQ(again.width, 480);
    EXPECT_EQ(again.height, 360);
    ASSERT_EQ(again.controls.size(), 2u);
    EXPECT_EQ(again.controls[0].type, "qRoster");
    EXPECT_EQ(again.controls[0].name, "list 1");
    EXPECT_EQ(again.controls[0].place.left, -8);
    EXPECT_EQ(again.controls[0].place.height, 344);
    EXPECT_EQ(again.controls[0].settings.All(), list.settings.All());
    EXPECT_TRUE(again.controls[1].settings.All().empty());
    EXPECT_EQ(FormFileText(again), text);
}

TEST_F(FormFileTest, ColorsAreWrittenInHexadecimal) {
    FormFile file;
    file.controls.push_back({"qRoster", "a", {}, {}});
    file.controls[0].settings.Put("SelectedColor", SystemColor(13));
    EXPECT_THAT(FormFileText(file), HasSubstr("SelectedColor = 0x8000000d\n"));
}

TEST_F(FormFileTest, BytesThatAreNotTextAreWrittenAsTheReplacementCharacter) {
    FormFile file;
    file.caption = "a\xFF";
    EXPECT_EQ(ParseFormFile(FormFileText(file), "x").caption, "a\xEF\xBF\xBD");
}

TEST_F(FormFileTest, WhatAFileLeavesOutHasItsDefault) {
    const FormFile file = ParseFormFile("[form]\n[[control]]\ntype='qRoster'\nname='a'\n", "x");
    EXPECT_EQ(file.width, 640);
    ASSERT_EQ(file.controls.size(), 1u);
    EXPECT_EQ(file.controls[0].place.width, Placement{}.width);
}

TEST_F(FormFileTest, TextThatIsNoTomlIsAnErrorWithItsLine) {
    EXPECT_THAT(ErrorOf("[form]\ncaption = \n"), HasSubstr("stock.toml:2: "));
    EXPECT_THAT(ErrorOf("[form]\nwidth = 1\nwidth = 2\n"), HasSubstr("stock.toml:3: "));
    EXPECT_THAT(ErrorOf(std::string("[form]\ncaption = \"\0\"", 19)), HasSubstr("stock.toml:2: "));
    EXPECT_THAT(ErrorOf("[form]\ncaption = \"\xFF\""), HasSubstr("stock.toml:2: "));
}

TEST_F(FormFileTest, AnUnknownKeyIsAnErrorWithLineAndKey) {
    EXPECT_EQ(ErrorOf("[form]\ntitle = 'x'\n"), "stock.toml:2: form.title: is not a known key");
    EXPECT_EQ(ErrorOf("[form]\n[other]\n"), "stock.toml:2: other: is not a known key");
    EXPECT_EQ(ErrorOf("[form]\n[[control]]\ntype = 'qRoster'\nname = 'a'\nleft = 1\nright = 2\n"),
              "stock.toml:6: control.right: is not a known key");
    EXPECT_EQ(ErrorOfSettings("xn = 2\nXN = 3\n"),
              "stock.toml:7: control.settings.XN: is not a setting of qRoster");
    EXPECT_EQ(ErrorOfSettings("Font = { Nmae = 'x' }\n"),
              "stock.toml:6: control.settings.Font.Nmae: is not a known key");
}

TEST_F(FormFileTest, AWrongTypeIsAnErrorWithLineAndKey) {
    EXPECT_EQ(ErrorOf("[form]\nwidth = 'x'\n"), "stock.toml:2: form.width: is not a whole number");
    EXPECT_EQ(ErrorOf("form = 3\n"), "stock.toml:1: form: is not a table");
    EXPECT_EQ(ErrorOf("control = 3\n[form]\n"), "stock.toml:1: control: is not a list of tables");
    EXPECT_EQ(ErrorOf("control = [3]\n[form]\n"), "stock.toml:1: control: is not a table");
    EXPECT_EQ(ErrorOfSettings("xn = 'three'\n"), "stock.toml:6: control.settings.xn: is not a whole number");
    EXPECT_EQ(ErrorOfSettings("xn = 1.5\n"), "stock.toml:6: control.settings.xn: is not a whole number");
    EXPECT_EQ(ErrorOfSettings("HotTrack = 1\n"),
              "stock.toml:6: control.settings.HotTrack: is not true or false");
    EXPECT_EQ(ErrorOfSettings("TmpKey = false\n"), "stock.toml:6: control.settings.TmpKey: is not a text");
    EXPECT_EQ(ErrorOfSettings("Font = 'Sans'\n"), "stock.toml:6: control.settings.Font: is not a font");
}

TEST_F(FormFileTest, AValueOutOfRangeIsAnErrorWithLineAndKey) {
    EXPECT_EQ(ErrorOf("[form]\nwidth = 0\n"), "stock.toml:2: form.width: is not within 1 to 8192");
    EXPECT_EQ(ErrorOfSettings("xn = 4294967296\n"),
              "stock.toml:6: control.settings.xn: does not fit 32 bits");
    EXPECT_EQ(ErrorOfSettings("Font = { Size = 0 }\n"),
              "stock.toml:6: control.settings.Font.Size: is not within 1 to 1000");
    EXPECT_EQ(ErrorOfSettings("Font = { Size = inf }\n"),
              "stock.toml:6: control.settings.Font.Size: is not a number that can be used");
    EXPECT_THAT(ErrorOfSettings("BorderStyle = 7\n"), HasSubstr("BorderStyle is 7, not 0 or 1"));
}

TEST_F(FormFileTest, ControlsNeedAKnownTypeAndANameOfTheirOwn) {
    EXPECT_EQ(ErrorOf(""), "stock.toml:1: form: is missing");
    EXPECT_EQ(ErrorOf("[form]\n[[control]]\nname = 'a'\n"), "stock.toml:2: control.type: is missing");
    EXPECT_EQ(ErrorOf("[form]\n[[control]]\ntype = 'qRoster'\n"), "stock.toml:2: control.name: is missing");
    EXPECT_EQ(ErrorOf("[form]\n[[control]]\nname = 'a'\ntype = 'grid'\n"),
              "stock.toml:4: control.type: there is no control type \"grid\"");
    EXPECT_EQ(ErrorOf("[form]\n[[control]]\ntype = 'qRoster'\nname = ''\n"),
              "stock.toml:4: control.name: is empty");
    EXPECT_EQ(
        ErrorOf("[form]\n[[control]]\ntype='qRoster'\nname='a'\n[[control]]\ntype='TextBox'\nname='a'\n"),
        "stock.toml:7: control.name: \"a\" is there twice");
}

// qRoster writes this key with a capital L and reads it with a small one. Both are its keys, and neither
// stands for the other.
TEST_F(FormFileTest, BothSpellingsOfTheKeyForGridLinesOnTheBorderAreKnown) {
    EXPECT_EQ(ErrorOfSettings("GridLineOnBorder = true\nGridlineOnBorder = false\n"), "no error");
    EXPECT_EQ(ErrorOfSettings("gridlineonborder = true\n"),
              "stock.toml:6: control.settings.gridlineonborder: is not a setting of qRoster");
}

/// A control of a program's own.
class Gauge : public host::Control {
public:
    void Initialize(host::Component&) override {}
    void ReadProperties(host::PropertyBag& bag) override { value = host::Read(bag, "Value", 0.5f); }
    void WriteProperties(host::PropertyBag& bag) override { bag.WriteProperty("Value", value, 0.5f); }
    float value = 0;
};

TEST_F(FormFileTest, AProgramsOwnControlsAreKnownOnceTheyAreRegistered) {
    const std::string text = "[form]\n[[control]]\ntype = 'Gauge'\nname = 'a'\nsettings = { Value = 2 }\n";
    EXPECT_THAT(ErrorOf(text), HasSubstr("no control type \"Gauge\""));
    RegisterControl<Gauge>("Gauge");
    EXPECT_EQ(ErrorOf(text), "no error");
    EXPECT_EQ(ControlTypeName(Gauge()), "Gauge");
    EXPECT_THAT(RegisteredControls(), testing::IsSupersetOf({"Gauge", "TextBox", "qRoster"}));
    EXPECT_EQ(std::get<float>(ParseFormFile(text, "x").controls[0].settings.All().at("Value")), 2.0f);
}

TEST_F(FormFileTest, AControlThatRefusesItsSettingsIsAnErrorOfTheFile) {
    struct Refusing : Gauge {
        void ReadProperties(host::PropertyBag& bag) override {
            if (host::Read(bag, "Value", 0.5f) > 1) throw Error("too much");
        }
    };
    RegisterControl<Refusing>("Refusing");
    EXPECT_EQ(ErrorOf("[form]\n[[control]]\ntype = 'Refusing'\nname = 'a'\n[control.settings]\nValue = 3\n"),
              "stock.toml:5: control.settings: too much");
}

/// Saving and loading a whole form.
class FormOnDiskTest : public testing::Test {
protected:
    ~FormOnDiskTest() override { std::filesystem::remove(file); }
    void Write(const std::string& text) const { std::ofstream(file) << text; }

    const std::string file = testing::TempDir() + "tvok_form_test.toml";
    test::TestDesktop desktop;
    Form& loaded = desktop.desktop().AddForm("before", 200, 100);
};

TEST_F(FormOnDiskTest, AFormComesBackWithItsControlsAndTheirSettings) {
    Form& form = desktop.form();
    form.Caption("Stock \xE2\x82\xAC");
    auto& list = form.Add<qRoster>("list", {8, 9, 200, 150});
    list.xn(3);
    list.SelectedColor(SystemColor(14));
    list.TabStopSettingStr("40,60");
    form.Add<TextBox>("text", {220, 9, 100, 24}).Text("as typed");
    form.Save(file);

    loaded.Load(file);
    EXPECT_EQ(loaded.Caption(), "Stock \xE2\x82\xAC");
    EXPECT_EQ(loaded.Width(), 640);
    EXPECT_EQ(loaded.Height(), 480);
    EXPECT_THAT(loaded.Names(), testing::ElementsAre("list", "text"));
    const auto* again = loaded.Find<qRoster>("list");
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->xn(), 3);
    EXPECT_EQ(again->SelectedColor(), SystemColor(14));
    EXPECT_EQ(again->TabStopSettingStr(), "40,60");
    EXPECT_EQ(loaded.PlacementOf(*again).left, 8);
    EXPECT_EQ(loaded.PlacementOf(*again).width, 200);
    ASSERT_NE(loaded.Find<TextBox>("text"), nullptr);
    EXPECT_EQ(loaded.Find<TextBox>("text")->Text(), "as typed");
}

// The key is written with a capital L and read with a small one, and stays so: the value does not come back.
TEST_F(FormOnDiskTest, GridLinesOnTheBorderAreLost) {
    desktop.form().Add<qRoster>("list", Placement{}).GridlineOnBorder(true);
    desktop.form().Save(file);
    loaded.Load(file);
    EXPECT_FALSE(loaded.Find<qRoster>("list")->GridlineOnBorder());
}

TEST_F(FormOnDiskTest, AFileWithAnErrorLoadsNothing) {
    Write("[form]\ncaption = "
          "'new'\n[[control]]\ntype='TextBox'\nname='a'\n[[control]]\ntype='TextBox'\nname='b'\n"
          "[control.settings]\nTxt = 'x'\n");
    try {
        loaded.Load(file);
        FAIL() << "no error";
    } catch (const FileError& error) {
        EXPECT_EQ(error.what(), file + ":10: control.settings.Txt: is not a setting of TextBox");
    }
    EXPECT_EQ(loaded.Caption(), "before");
    EXPECT_TRUE(loaded.Names().empty());
}

TEST_F(FormOnDiskTest, AControlThatFailsOnTheFormTakesTheOthersWithIt) {
    struct RunModeOnly : Gauge {
        host::Component* component = nullptr;
        void Initialize(host::Component& base) override { component = &base; }
        void ReadProperties(host::PropertyBag&) override {
            if (component->Ambient().UserMode()) throw Error("not here");
        }
    };
    RegisterControl<RunModeOnly>("RunModeOnly");
    Write("[form]\ncaption='new'\n[[control]]\ntype='TextBox'\nname='a'\n[[control]]\ntype='RunModeOnly'"
          "\nname='b'\n");
    EXPECT_THROW(loaded.Load(file), Error);
    EXPECT_EQ(loaded.Caption(), "before");
    EXPECT_TRUE(loaded.Names().empty());
}

TEST_F(FormOnDiskTest, AFileThatIsNotThereOrCannotBeWrittenIsAnErrorThatNamesIt) {
    const std::string missing = testing::TempDir() + "no such folder/form.toml";
    EXPECT_THAT([&] { loaded.Load(missing); }, testing::ThrowsMessage<FileError>(HasSubstr(missing)));
    EXPECT_THAT([&] { loaded.Save(missing); }, testing::ThrowsMessage<FileError>(HasSubstr(missing)));
}

TEST_F(FormOnDiskTest, OnlyAnEmptyFormIsLoaded) {
    Write("[form]\n");
    desktop.form().Add<TextBox>("text", Placement{});
    EXPECT_THAT([&] { desktop.form().Load(file); },
                testing::ThrowsMessage<FileError>(HasSubstr("is not empty")));
}

TEST_F(FormOnDiskTest, AControlOfAnUnknownTypeIsNotSaved) {
    struct Stranger : Gauge {};
    desktop.form().Add<Stranger>("odd", Placement{});
    EXPECT_THAT([&] { desktop.form().Save(file); }, testing::ThrowsMessage<FileError>(HasSubstr("\"odd\"")));
    EXPECT_FALSE(std::filesystem::exists(file));
}

} // namespace
} // namespace tvok::soft
