#include "language_fault.h"

Q_LOGGING_CATEGORY(language_log, "zarvello.language")
