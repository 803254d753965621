#include "tests/support/FakeServices.h"

#include <gtest/gtest.h>

using namespace marlevo;

namespace {

TEST(Preferences, callObserversAfterChangesUntilTheyAreRemoved) {
    std::vector<double> heard;
    Preferences::Observation late;
    Preferences::Observation second;
    {
        FakePreferences preferences;
        const auto hear = [&] { heard.push_back(preferences.get(preference::defaultCanvasWidth)); };
        const auto first = preferences.observe([&] {
            hear();
            second.reset();  // an observer that is removed meanwhile is not called
            if (!late) late = preferences.observe(hear);
        });
        second = preferences.observe(hear);

        preferences.set(preference::defaultCanvasWidth, 800);
        EXPECT_EQ(heard, std::vector({800.0}));
        preferences.set(preference::defaultCanvasWidth, 800);
        EXPECT_EQ(heard.size(), 1u) << "the value was the same";
        preferences.set(preference::autoSaveEnabled, false);
        EXPECT_EQ(heard.size(), 3u);
    }
}

}  // namespace
