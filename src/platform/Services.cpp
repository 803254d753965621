#include "platform/Services.h"

#include "platform/Strings.h"

namespace marlevo {

std::string Services::translate(const char* context, const char* text) const {
    return strings ? strings->translate(context, text) : text;
}

}  // namespace marlevo
