#include "base/event.h"
#include "tests/test.h"

namespace {

struct Trail {
    std::string text;
    auto Mark(char mark)
    {
        return [this, mark] { text += mark; };
    }
};

TEST(AnEvent, ReachesItsListenersInOrderOfSubscriptionUntilTheyLeave)
{
    Trail trail;
    Event<> event;
    event.Raise();
    const Subscription first = event.Subscribe(trail.Mark('a'));
    Subscription second = event.Subscribe(trail.Mark('b'));
    event.Raise();
    second.End();
    event.Raise();
    EXPECT_EQ(trail.text, "aba");
}

TEST(AnEvent, KeepsANewSubscriberWaitingForTheNextRaise)
{
    Trail trail;
    Event<> event;
    std::vector<Subscription> later;
    const Subscription first = event.Subscribe([&] { later.push_back(event.Subscribe(trail.Mark('n'))); });
    event.Raise();
    EXPECT_EQ(trail.text, "");
    event.Raise();
    EXPECT_EQ(trail.text, "n");
}

TEST(AnEvent, SkipsAListenerThatAnotherEndsDuringTheRound)
{
    for (const bool endsEarlier : {false, true}) {
        Trail trail;
        Event<> event;
        Subscription first;
        Subscription third;
        first = event.Subscribe(trail.Mark('a'));
        const Subscription second = event.Subscribe([&] { (endsEarlier ? first : third).End(); });
        third = event.Subscribe(trail.Mark('c'));
        event.Raise();
        event.Raise();
        EXPECT_EQ(trail.text, endsEarlier ? "acc" : "aa");
    }
}

TEST(AnEvent, LetsAListenerReplaceTheLastOneWithoutCallingTheReplacement)
{
    Trail trail;
    Event<> event;
    Subscription last;
    const Subscription first = event.Subscribe([&] {
        last.End();
        last = event.Subscribe(trail.Mark('n'));
    });
    last = event.Subscribe(trail.Mark('x'));
    event.Raise();
    EXPECT_EQ(trail.text, "");
}

TEST(AnEvent, SurvivesAHandlerThatEndsItself)
{
    Event<> event;
    int calls = 0;
    Subscription own;
    std::string captured(100, 'x');
    own = event.Subscribe([&calls, &own, captured] {
        own.End();
        calls += static_cast<int>(captured.size());
    });
    event.Raise();
    event.Raise();
    EXPECT_EQ(calls, 100);
}

TEST(AnEvent, MayBeRaisedAgainAndDestroyedByAHandler)
{
    auto event = std::make_unique<Event<int>>();
    std::vector<int> seen;
    std::vector<Subscription> subscriptions;
    subscriptions.push_back(event->Subscribe([&](int depth) {
        seen.push_back(depth);
        if (depth < 2) {
            event->Raise(depth + 1);
        } else {
            event.reset();
        }
    }));
    subscriptions.push_back(event->Subscribe([&](int depth) { seen.push_back(100 + depth); }));
    event->Raise(0);
    EXPECT_EQ(seen, (std::vector<int>{0, 1, 2}));
}

TEST(AnEvent, StopsTheRoundAtAFailureAndWorksAfterIt)
{
    Trail trail;
    Event<> event;
    bool fails = true;
    const Subscription first = event.Subscribe([&] {
        if (fails) {
            throw std::runtime_error("no");
        }
    });
    const Subscription second = event.Subscribe(trail.Mark('b'));
    EXPECT_THROW(event.Raise(), std::runtime_error);
    fails = false;
    event.Raise();
    EXPECT_EQ(trail.text, "b");
}

} // namespace
