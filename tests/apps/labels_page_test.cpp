// The gallery's labels on a desktop, by a user's mouse and keys.
#include "apps/gallery/LabelsPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TestDesktop.h"

namespace gallery {
namespace {

using testing::HasSubstr;

class LabelsPageTest : public testing::Test {
protected:
    LabelsPageTest() {
        desktop_.form().Size(980, 640);
        page_.Layout({0, 0, 980, 640});
        desktop_.Pump();
    }

    tvok::test::TestDesktop desktop_;
    LabelsPage page_{desktop_.desktop(), desktop_.form()};
};

TEST_F(LabelsPageTest, WhatALabelHearsIsTold) {
    desktop_.Click(page_.label(0), 100, 20);
    EXPECT_THAT(page_.LastEvent(), HasSubstr("MouseUp 1 at 1500, 300 twips"));
    desktop_.Key('A');
    EXPECT_THAT(page_.LastEvent(), HasSubstr("KeyUp 65"));
}

TEST_F(LabelsPageTest, TabGoesThroughAllOfThem) {
    desktop_.Focus(page_.label(0));
    for (std::size_t place = 0; place < page_.Count(); ++place) {
        EXPECT_EQ(tvok::host::platform().GetFocus(), page_.label(place).hwnd()) << place;
        desktop_.Key(tvok::host::VK_TAB);
    }
    EXPECT_EQ(tvok::host::platform().GetFocus(), page_.label(0).hwnd());
}

TEST_F(LabelsPageTest, TheCaptionsGrowWithTheForm) {
    const std::int32_t before = page_.label(3).TextRight();
    page_.Layout({0, 0, 1200, 640});
    EXPECT_EQ(page_.label(3).TextRight(), before + 110);
}

} // namespace
} // namespace gallery
