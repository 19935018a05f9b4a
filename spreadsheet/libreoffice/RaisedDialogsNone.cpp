// Where there is no X to build for.
#include "spreadsheet/libreoffice/RaisedDialogs.h"

namespace zvonika {

class RaisedDialogs::Screen {};

RaisedDialogs::RaisedDialogs() = default;
RaisedDialogs::~RaisedDialogs() = default;

} // namespace zvonika
