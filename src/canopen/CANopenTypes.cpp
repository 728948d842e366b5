#include "CANopenTypes.h"

QString CommonGUI::version = QStringLiteral("0.9");
