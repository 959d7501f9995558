#include "tvok/records/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

#include "tvok/records/Error.h"

namespace tvok {
namespace {

TEST(Event, WithoutAHandlerDoesNothing) {
    const Event<int> event;
    EXPECT_FALSE(event);
    event(1);
}

TEST(Event, PassesReferencesThrough) {
    Event<int&> event;
    event = [](int& number) { number += 1; };
    int number = 1;
    event(number);
    EXPECT_TRUE(event);
    EXPECT_EQ(number, 2);
}

TEST(Event, CountsAnEmptyFunctionAsNone) {
    Event<> event;
    event = std::function<void()>();
    EXPECT_FALSE(event);
    event();
}

TEST(Event, AHandlerThatDropsItselfRunsToItsEnd) {
    Event<> event;
    std::string seen;
    event = [&event, &seen, own = std::make_shared<std::string>("kept")] {
        event = nullptr;
        seen = *own;
    };
    event();
    EXPECT_EQ(seen, "kept");
    EXPECT_FALSE(event);
}

TEST(Event, AHandlerThatReplacesItselfRunsToItsEndAndTheNewOneRunsNext) {
    Event<> event;
    std::string seen;
    event = [&event, &seen, own = std::make_shared<std::string>("first")] {
        event = [&seen] { seen += " second"; };
        seen = *own;
    };
    event();
    EXPECT_EQ(seen, "first");
    event();
    EXPECT_EQ(seen, "first second");
}

TEST(Event, MayBeRaisedFromItsOwnHandler) {
    Event<int> event;
    int sum = 0;
    event = [&](int depth) {
        sum += depth;
        if (depth > 0) event(depth - 1);
    };
    event(4);
    EXPECT_EQ(sum, 10);
}

TEST(Event, MayBeDestroyedByItsHandler) {
    auto event = std::make_unique<Event<>>();
    std::string seen;
    *event = [&event, &seen, own = std::make_shared<std::string>("alive")] {
        event.reset();
        seen = *own;
    };
    (*event)();
    EXPECT_EQ(seen, "alive");
}

TEST(Event, LetsWhatItsHandlerThrowsThrough) {
    Event<> event;
    event = [] { throw std::runtime_error("from the host"); };
    EXPECT_THROW(event(), std::runtime_error);
    EXPECT_TRUE(event);
}

TEST(RunningEvent, CountsTheEventsThatAreBeingRaised) {
    Event<> inner;
    Event<> outer;
    int deepest = 0;
    inner = [&] { deepest = RunningEvent::Count(); };
    outer = [&] {
        inner();
        EXPECT_EQ(RunningEvent::Count(), 1);
        throw 1;
    };
    EXPECT_THROW(outer(), int);
    EXPECT_EQ(deepest, 2);
    EXPECT_EQ(RunningEvent::Count(), 0);
}

TEST(FirstError, RunsEveryStatementAndThrowsWhatWasThrownFirst) {
    std::string done;
    FirstError failed;
    failed.Try([&] { done += "a"; });
    failed.Try([&] { throw 1; });
    failed.Try([&] { throw std::string("second"); });
    failed.Try([&] { done += "d"; });
    EXPECT_THROW(failed.Rethrow(), int);
    EXPECT_EQ(done, "ad");
    EXPECT_NO_THROW(failed.Rethrow());
}

TEST(Quietly, EndsOnlyTheStatementThatThrows) {
    std::string done;
    quietly([&] { done += "a"; }, [&] { throw 1; }, [&] { done += "c"; });
    EXPECT_EQ(done, "ac");
}

} // namespace
} // namespace tvok
