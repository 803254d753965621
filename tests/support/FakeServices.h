#pragma once

#include "platform/Console.h"
#include "platform/FilePanels.h"
#include "platform/Preferences.h"
#include "platform/SleepingClock.h"

#include <algorithm>
#include <map>
#include <string>

namespace marlevo {

class FakeConsole : public Console {
public:
    void writeLine(std::string_view text) override { lines.emplace_back(text); }

    std::vector<std::string> lines;
};

/// Stores the last request. The test answers it by `answer`.
class FakeFilePanels : public FilePanels {
public:
    void showSavePanel(const SavePanelRequest& request, Completion completion) override {
        save = request;
        answer = std::move(completion);
    }
    void showOpenPanel(const OpenPanelRequest& request, Completion completion) override {
        open = request;
        answer = std::move(completion);
    }

    std::optional<SavePanelRequest> save;
    std::optional<OpenPanelRequest> open;
    Completion answer;
};

/// A clock that runs only in advance().
class FakeClock : public SleepingClock {
public:
    std::unique_ptr<Sleep> sleep(std::chrono::nanoseconds duration,
                                 std::function<void()> completion) override {
        auto sleep = std::make_unique<FakeSleep>(*this);
        sleeps_[sleep.get()] = {now_ + duration, std::move(completion)};
        return sleep;
    }

    void advance(std::chrono::nanoseconds time) {
        const auto end = now_ + time;
        const auto isDue = [&](const auto& entry) { return entry.second.end <= end; };
        for (auto due = std::ranges::find_if(sleeps_, isDue); due != sleeps_.end();
             due = std::ranges::find_if(sleeps_, isDue)) {
            now_ = due->second.end;
            const auto completion = std::move(due->second.completion);
            sleeps_.erase(due);
            completion();
        }
        now_ = end;
    }

    std::size_t sleepers() const { return sleeps_.size(); }

private:
    struct FakeSleep : Sleep {
        explicit FakeSleep(FakeClock& owner) : clock(owner) {}
        ~FakeSleep() override { clock.sleeps_.erase(this); }
        FakeClock& clock;
    };
    struct Entry {
        std::chrono::nanoseconds end;
        std::function<void()> completion;
    };

    std::chrono::nanoseconds now_{0};
    std::map<const Sleep*, Entry> sleeps_;
};

/// Preferences in memory, empty at first.
class FakePreferences : public Preferences {
protected:
    std::optional<double> storedNumber(std::string_view key) const override {
        const auto found = numbers_.find(std::string(key));
        return found == numbers_.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<bool> storedFlag(std::string_view key) const override {
        const auto found = flags_.find(std::string(key));
        return found == flags_.end() ? std::nullopt : std::optional(found->second);
    }
    void store(std::string_view key, double value) override { numbers_[std::string(key)] = value; }
    void store(std::string_view key, bool value) override { flags_[std::string(key)] = value; }

private:
    std::map<std::string, double> numbers_;
    std::map<std::string, bool> flags_;
};

}  // namespace marlevo
