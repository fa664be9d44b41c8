#include "desk/data/PatientRecord.h"

#include "desk/data/Database.h"

namespace desk {

namespace {

const PatientHooks withoutShell;

} // namespace

struct PatientRecord::Collections {
    explicit Collections(const PatientScope& scope)
        : corvala(scope)
        , files(scope)
        , events(scope)
        , notes(scope)
        , visits(scope)
        , dueDates(scope) {}

    CorvalaRecords corvala;
    PatientFiles files;
    PatientEvents events;
    PatientNotes notes;
    PatientVisits visits;
    PatientDueDates dueDates;
};

PatientRecord::PatientRecord(Database& database, QString sign)
    : PatientRecord(database, std::move(sign), withoutShell) {}

PatientRecord::PatientRecord(Database& database, QString sign, const PatientHooks& hooks)
    : database_(database)
    , sign_(std::move(sign))
    , hooks_(hooks) {}

PatientRecord::~PatientRecord() = default;

bool PatientRecord::Init(const QString& id) {
    const PatientCache::Entry* found = database_.patients().find(id);
    if (!found) return false;
    data_ = *found;
    return true;
}

QString PatientRecord::idschema() const {
    return database_.schema();
}

PatientRecord::Collections& PatientRecord::collections() {
    if (!collections_) collections_ = std::make_unique<Collections>(PatientScope{database_, *this, sign_, hooks_});
    return *collections_;
}

CorvalaRecords& PatientRecord::corvala() {
    return collections().corvala;
}

PatientFiles& PatientRecord::Files() {
    return collections().files;
}

PatientEvents& PatientRecord::Eventi() {
    return collections().events;
}

PatientNotes& PatientRecord::Appunti() {
    return collections().notes;
}

PatientVisits& PatientRecord::VisiteAmbDom() {
    return collections().visits;
}

PatientDueDates& PatientRecord::scadenze() {
    return collections().dueDates;
}

void PatientRecord::GeneraEvento(host::Raccolta& source) {
    if (hooks_.raiseEvent) hooks_.raiseEvent(*this, source);
}

} // namespace desk
