#include "io/AutoSave.h"

#include "io/Save.h"
#include "model/DrawingDocument.h"
#include "platform/Preferences.h"

namespace marlevo {

AutoSave::AutoSave(DrawingDocument& document) : document_(document) {
    const Services& services = document.services();
    if (services.sleepingClock != nullptr && services.preferences != nullptr) sleep();
}

void AutoSave::sleep() {
    sleep_ = document_.services().sleepingClock->sleep(interval, [this] {
        runCycle();
        sleep();
    });
}

void AutoSave::runCycle() {
    const Preferences* const preferences = document_.services().preferences;
    const bool isEnabled = preferences && preferences->get(preference::autoSaveEnabled);
    const std::optional<std::filesystem::path> file = document_.currentFileURL;
    if (isEnabled && file) writeDocument(document_, *file);
}

}  // namespace marlevo
