#include "tvok/records/tvok_declare.h"

namespace tvok {

void GetDefaultItem(qrosterdata& record) {
    record = {};
}

qrosterdata ZeroItem() {
    qrosterdata record;
    for (auto* field :
         {&record.IconID, &record.IconBackColor, &record.IconPos, &record.bColor, &record.fcolor})
        *field = 0;
    return record;
}

} // namespace tvok
