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

bool AutoSave::isOn() const {
    const Preferences* const preferences = document_.services().preferences;
    return document_.currentFileURL.get() && preferences &&
           preferences->get(preference::autoSaveEnabled);
}

void AutoSave::runCycle() {
    if (!isOn()) return;
    const std::filesystem::path file = *document_.currentFileURL.get();
    *isWritten_ = false;
    writeDocumentBehind(document_, file,
                        [result = isWritten_](bool isWritten) { *result = isWritten; });
}

}  // namespace marlevo
