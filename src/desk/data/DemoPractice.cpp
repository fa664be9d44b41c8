#include "desk/data/DemoPractice.h"

#include "desk/data/Database.h"

namespace desk {

bool DemoPractice::fill(Database& database) {
    return database.isEmpty() && false;
}

} // namespace desk
