#pragma once

#include <QMetaType>
#include <QString>

namespace host {

/// A prescription that the host is about to add, as the event "prescrizione.add" hands it over. Owned by the host.
class Prescrizione {
public:
    virtual ~Prescrizione() = default;
    virtual int tipo() const = 0; ///< 1 a medicine.
    virtual QString classe() const = 0;
    virtual void setClasse(const QString& classe) = 0;
    virtual void setTipostampa(qint16 tipo) = 0; ///< 1 prints on the white form.
};

} // namespace host

Q_DECLARE_METATYPE(host::Prescrizione*)
