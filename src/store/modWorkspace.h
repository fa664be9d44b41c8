#pragma once

#include "host/Changes.h"
#include "host/context.h"
#include "host/contract/Host.h"
#include "platform/Collection.h"
#include "store/RecordNumber.h"
#include "store/modProgressivi.h"

#include <QDate>
#include <QString>
#include <optional>
#include <utility>

/// What every record of the practice has, whatever its type. `ID` is empty until the first save; `Data` is text in the
/// regional short form. The human number is never a field: it is `anno` and `progressivo`, joined.
struct WorkspaceItem {
    QString ID;
    QString anno;
    QString progressivo;
    QString Data;
    QString descrizione;
    /// What kept the record from being read whole; empty when it was. Such a record is shown and deleted, never written
    /// over. Not stored.
    QString fault;

    RecordNumber number() const { return RecordNumber::of(anno, progressivo); }
    void setNumber(const RecordNumber& number) {
        anno = number.year;
        progressivo = number.progressivo();
    }
};

/// The fields that come from the row itself, all but the memo.
void readRow(const host::RigaCorvala& row, WorkspaceItem& item);
/// The query of the records of one type across all patients, in a period when both dates are valid.
QString periodQuery(const QString& t1, const QDate& from, const QDate& to);

/// The manager of one record type: writes, reads and lists the rows with the code `t1`, and keeps the list of the
/// current patient until `Refresh`. One long-lived instance per type. Errors of the host pass through.
template <class Item>
class WorkspaceManager {
public:
    explicit WorkspaceManager(QString t1)
        : t1_(std::move(t1)) {}
    virtual ~WorkspaceManager() = default;
    WorkspaceManager(const WorkspaceManager&) = delete;
    WorkspaceManager& operator=(const WorkspaceManager&) = delete;

    /// Fills the item from the memo; an empty or broken memo leaves what the type says.
    virtual void DeserializzaMEMO(Item& item, const QString& memo) const = 0;

    /// Writes the record for the current patient, and its new identity into `ID`. False leaves `ID` as it was. Does not
    /// empty the list: the caller does, once all its work on the record is done. Throws NumberTakenError for a new
    /// record whose number another one has, where the host guards the numbers.
    bool Salva(Item& item) {
        host::Paziente* patient = currentPatient();
        if (!patient || !item.fault.isEmpty()) return false;
        QString id = item.ID;
        const host::DatiCorvala data{item.Data, item.number().text(), item.descrizione, t1_, SerializzaMEMO(item)};
        if (!patient->corvala().Salva(id, data)) return false;
        item.ID = id;
        return true;
    }

    /// As `Salva`, for a new record: under its own number, or under the next free one of its year when another
    /// workstation has taken that meanwhile, which is then in `progressivo`.
    bool saveNew(Item& item) {
        try {
            if (EsisteProgressivo(t1_, item.number().text())) takeNextNumber(item);
        } catch (const host::HostError&) {
            return false; // nothing is stored under a number of which nobody knows whether it is free
        }
        while (true) {
            try {
                return Salva(item);
            } catch (const host::NumberTakenError&) {
                if (!takeNextNumber(item)) return false; // the numbers of the year are used up
            }
        }
    }

    /// Nothing when the row is not there. Without a patient, that of the desk.
    std::optional<Item> Carica(const QString& id, host::Paziente* patient = nullptr) const {
        if (!patient) patient = currentPatient();
        if (!patient) return std::nullopt;
        const std::optional<host::RigaCorvala> row = patient->corvala().Carica(id);
        return row ? std::optional<Item>(CreaItem(*row)) : std::nullopt;
    }

    virtual bool Elimina(host::Paziente& patient, const QString& id) {
        if (!patient.corvala().Elimina(id)) return false;
        Refresh();
        announceChange(t1_);
        return true;
    }

    /// The records of the current patient by `ID`; what others saved since it was filled is not seen. What the host
    /// could not read is not kept: HostError passes through, and the next call asks again.
    const platform::Collection<Item>& Lista() {
        if (cache_) return *cache_;
        platform::Collection<Item> items;
        if (host::Paziente* patient = currentPatient()) {
            for (const host::RigaCorvala& row : patient->corvala().Lista()) {
                if (row.t1 == t1_) items.add(row.ID, createListItem(row)); // The host lists all types together.
            }
        }
        return cache_.emplace(std::move(items));
    }

    void Refresh() { cache_.reset(); }

    const QString& t1() const { return t1_; }

protected:
    virtual QString SerializzaMEMO(const Item& item) const = 0;

    /// As `DeserializzaMEMO`, for a record of the list. A type whose memo can fail keeps here what could be read, so
    /// that one bad record does not hide the others.
    virtual void deserializeForList(Item& item, const QString& memo) const { DeserializzaMEMO(item, memo); }

    Item CreaItem(const host::RigaCorvala& row) const {
        Item item;
        readRow(row, item);
        DeserializzaMEMO(item, row.m1);
        return item;
    }

private:
    /// False when the next number is the one that the item has. A suffix stays.
    bool takeNextNumber(Item& item) const {
        RecordNumber number = item.number();
        const QString former = std::exchange(number.progressive, ProssimoProgressivo(t1_, number.year));
        item.setNumber(number);
        return number.progressive != former;
    }

    Item createListItem(const host::RigaCorvala& row) const {
        Item item;
        readRow(row, item);
        deserializeForList(item, row.m1);
        return item;
    }

    QString t1_;
    std::optional<platform::Collection<Item>> cache_;
};
