#include "CANopenTypes.h"

const QString CommonGUI::version = QStringLiteral("0.9");
