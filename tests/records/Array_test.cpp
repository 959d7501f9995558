#include "tvok/records/Array.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tvok {
namespace {

TEST(Array, StartsWithEntryNullAlone) {
    const Array<std::int32_t> array;
    EXPECT_EQ(array.UpperBound(), 0);
    EXPECT_EQ(array[0], 0);
}

TEST(Array, AnswersAnIndexOutsideWithTheSubscriptError) {
    Array<std::int32_t> array(3);
    EXPECT_NO_THROW(array[3]);
    EXPECT_THROW(array[4], SubscriptError);
    EXPECT_THROW(array[-1], SubscriptError);
    EXPECT_THROW(array[std::numeric_limits<std::int32_t>::min()], SubscriptError);
}

TEST(Array, TellsTheIndexAndTheBoundsInTheError) {
    Array<std::int32_t> array(3);
    try {
        array[7] = 1;
        FAIL();
    } catch (const SubscriptError& error) {
        EXPECT_STREQ(error.what(), "subscript out of range: 7 is not within 0 to 3");
    }
}

TEST(Array, ResizeKeepsWhatFits) {
    Array<std::string> array(2);
    array[1] = "b";
    array[2] = "c";
    array.Resize(5);
    EXPECT_EQ(array[2], "c");
    EXPECT_EQ(array[5], "");
    array.Resize(1);
    EXPECT_EQ(array[1], "b");
    EXPECT_THROW(array[2], SubscriptError);
}

TEST(Array, MakeLosesWhatItHeld) {
    Array<std::string> array(2);
    array[1] = "b";
    array.Make(2);
    EXPECT_EQ(array[1], "");
}

TEST(Array, ABoundBelowNullChangesNothing) {
    Array<std::int32_t> array(2);
    array[2] = 9;
    EXPECT_THROW(array.Make(-1), SubscriptError);
    EXPECT_THROW(array.Resize(-1), SubscriptError);
    EXPECT_EQ(array.UpperBound(), 2);
    EXPECT_EQ(array[2], 9);
}

} // namespace
} // namespace tvok
