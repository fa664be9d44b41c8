#include "desk/data/PatientCache.h"

#include "desk/data/Database.h"

namespace desk {

const PatientCache::Entry* PatientCache::find(const QString& id) {
    if (generation_ != database_.generation()) {
        entries_.clear();
        generation_ = database_.generation();
    }
    if (const auto known = entries_.constFind(id); known != entries_.cend()) return &*known;

    Query query =
        database_.run(QStringLiteral("select p.ID, p.Cognome, p.Nome, p.codicefiscale, p.idmedico, u.Cognome, u.Nome, "
                                     "u.codicefiscale from {schema}.tblPazienti p "
                                     "left join {schema}.tblUtenti u on u.ID = p.idmedico where p.ID = ?"),
                      {id});
    if (!query.next()) return nullptr;
    const Entry entry{query.text(0), query.text(1), query.text(2),
                      query.text(3), query.text(4), {query.text(5), query.text(6), query.text(7)}};
    return &*entries_.insert(id, entry);
}

} // namespace desk
