#include "tvok/records/Event.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

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

TEST(Event, AWatcherIsToldAfterTheHandlerAndSeesWhatThatLeftInArgumentsByReference) {
    Event<int&, const std::string&> event;
    std::string seen;
    event = [&](int& number, const std::string& text) {
        seen += "handler " + text;
        number = 7;
    };
    const auto watch = event.Watch([&](const int& number, const std::string& text) {
        seen += ", watcher " + text + std::to_string(number);
    });
    int number = 1;
    event(number, "a");
    EXPECT_EQ(seen, "handler a, watcher a7");
}

TEST(Event, AWatcherThatLooksFirstIsToldWhatItSawThen) {
    Event<int&> event;
    event = [](int& number) { number += 1; };
    std::string seen;
    const auto watch = event.Watch([](const int& number) { return std::to_string(number); },
                                   [&](const std::string& before, const int& after) {
                                       seen += before + ">" + std::to_string(after) + " ";
                                   });
    int number = 1;
    event(number);
    event(number);
    EXPECT_EQ(seen, "1>2 2>3 ");
}

TEST(Event, AWatcherIsNoHandlerButHearsOfARaiseWithoutOne) {
    Event<int> event;
    EXPECT_FALSE(event.IsHeard());
    int sum = 0;
    auto watch = event.Watch([&](int number) { sum += number; });
    EXPECT_FALSE(event);
    EXPECT_TRUE(event.IsHeard());
    event(5);
    EXPECT_EQ(sum, 5);
    watch.reset();
    event(5);
    EXPECT_EQ(sum, 5);
    EXPECT_FALSE(event.IsHeard());
}

TEST(Event, ByValueHandlersAndAllWatchersGetTheWholeArgument) {
    Event<std::string> event;
    std::string seen;
    event = [&](std::string text) { seen += "h" + std::exchange(text, {}); };
    const auto one = event.Watch([&](const std::string& text) { seen += "1" + text; });
    const auto two = event.Watch([&](const std::string& text) { seen += "2" + text; });
    event("x");
    EXPECT_EQ(seen, "hx1x2x");
}

TEST(Event, AWatcherIsToldOfARaiseWhoseHandlerReplacesItself) {
    Event<> event;
    int told = 0;
    int second = 0;
    const auto watch = event.Watch([&] { ++told; });
    event = [&event, &second] { event = [&second] { ++second; }; };
    event();
    EXPECT_EQ(told, 1);
    event();
    EXPECT_EQ(told, 2);
    EXPECT_EQ(second, 1);
}

TEST(Event, AWatcherIsToldOfTheRaiseWhoseHandlerEndsTheWatch) {
    Event<> event;
    std::string seen;
    EventWatch watch = event.Watch([&seen, own = std::make_shared<std::string>("told ")] { seen += *own; });
    event = [&watch] { watch.reset(); };
    event();
    EXPECT_EQ(seen, "told ");
    event();
    EXPECT_EQ(seen, "told ");
}

TEST(Event, AWatcherMayEndItsOwnWatch) {
    Event<> event;
    std::string seen;
    EventWatch watch;
    watch = event.Watch([&watch, &seen, own = std::make_shared<std::string>("told")] {
        watch.reset();
        seen += *own;
    });
    event();
    event();
    EXPECT_EQ(seen, "told");
}

TEST(Event, AWatcherThatComesDuringARaiseIsToldFromTheNextOn) {
    Event<> event;
    int told = 0;
    EventWatch inner;
    const auto watch = event.Watch([&] {
        if (!inner) inner = event.Watch([&told] { ++told; });
    });
    event();
    EXPECT_EQ(told, 0);
    event();
    EXPECT_EQ(told, 1);
}

TEST(Event, AWatcherIsToldOfTheRaiseWhoseHandlerEndsTheEvent) {
    auto event = std::make_unique<Event<const std::string&>>();
    std::string seen;
    const auto watch = event->Watch([](const std::string& text) { return text; },
                                    [&](const std::string& before, const std::string& after) {
                                        seen = before + after + std::to_string(RunningEvent::Count());
                                    });
    *event = [&event](const std::string&) { event.reset(); };
    (*event)("x");
    EXPECT_EQ(seen, "xx1");
}

TEST(Event, AWatchMayOutliveItsEvent) {
    EventWatch watch;
    {
        Event<> event;
        watch = event.Watch([] {});
    }
    watch.reset();
}

TEST(Event, AWatcherIsToldThoughTheHandlerThrowsWhatPassesThrough) {
    Event<int&> event;
    event = [](int& number) {
        number = 3;
        throw std::runtime_error("from the host");
    };
    int seen = 0;
    const auto watch = event.Watch([&](const int& number) { seen = number; });
    int number = 0;
    EXPECT_THROW(event(number), std::runtime_error);
    EXPECT_EQ(seen, 3);
    EXPECT_EQ(RunningEvent::Count(), 0);
}

TEST(Event, WhatAWatcherThrowsIsDroppedAndTheOthersAreToldAllTheSame) {
    Event<> event;
    std::string seen;
    event = [&] { seen += "handler "; };
    const auto first = event.Watch([] { throw 1; });
    const auto second = event.Watch([]() -> int { throw 2; }, [&](int) { seen += "not "; });
    const auto third = event.Watch([&] { seen += "told"; });
    EXPECT_NO_THROW(event());
    EXPECT_EQ(seen, "handler told");
}

TEST(Event, EachRaiseInsideAnotherHasItsOwnLook) {
    Event<int> event;
    std::string seen;
    event = [&](int depth) {
        if (depth > 0) event(depth - 1);
    };
    const auto watch = event.Watch(
        [](int depth) { return depth * 10; },
        [&](int looked, int depth) { seen += std::to_string(looked) + "/" + std::to_string(depth) + " "; });
    event(2);
    EXPECT_EQ(seen, "0/0 10/1 20/2 ");
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
