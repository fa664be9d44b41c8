#include "support/Places.h"

namespace places {

QString app(const char* below) {
    return QStringLiteral(APP_FOLDER) + QString::fromUtf8(below);
}

QString data(const char* below) {
    return QStringLiteral(DATA_FOLDER) + QString::fromUtf8(below);
}

QString tests(const char* below) {
    return QStringLiteral(TESTS_FOLDER) + QString::fromUtf8(below);
}

QString deskDataHelper() {
    return QStringLiteral(TESTS_PROGRAM_FOLDER "/desk_data_helper");
}

} // namespace places
