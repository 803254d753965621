#include "platform/qt/QtStrings.h"

#include <QCoreApplication>

namespace marlevo {

std::string QtStrings::translate(const char* context, const char* text) const {
    return QCoreApplication::translate(context, text).toStdString();
}

}  // namespace marlevo
