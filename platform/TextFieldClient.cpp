#include "platform/TextFieldClient.h"

namespace cutline {

TextFieldClient::~TextFieldClient() = default;

}  // namespace cutline
