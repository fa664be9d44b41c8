#pragma once

#include "host/contract/Host.h"

/// Stands between the module and the desk, hands everything on, and counts how often lists are read: those of the open
/// patient, and those of the whole practice.
class CountingHost : public host::Host {
public:
    explicit CountingHost(host::Host& behind)
        : behind_(behind) {}

    host::Utente& Utente() override { return behind_.Utente(); }
    host::Paziente* paziente() override { return (patient_.behind = behind_.paziente()) ? &patient_ : nullptr; }
    host::Framework& Framework() override { return behind_.Framework(); }
    host::Archivio& Archivio() override { return behind_.Archivio(); }
    host::DB& DB() override { return database_; }
    host::API& API() override { return behind_.API(); }

    void reset() { database_.lists = patient_.records.lists = 0; }
    int practiceLists() const { return database_.lists; }
    int patientLists() const { return patient_.records.lists; }

private:
    struct Database : host::DB {
        explicit Database(host::Host& host)
            : behind(host) {}
        std::unique_ptr<host::Recordset> OpenRecordset(const QString& sql) override {
            if (sql.contains(QLatin1String(" where data Between "))) ++lists;
            return behind.DB().OpenRecordset(sql);
        }
        void Execute(const QString& sql) override { behind.DB().Execute(sql); }
        QString Sign() const override { return behind.DB().Sign(); }
        host::Host& behind;
        int lists = 0;
    };

    struct Records : host::Corvala {
        QList<host::RigaCorvala> Lista() override {
            ++lists;
            return behind->Lista();
        }
        std::optional<host::RigaCorvala> Carica(const QString& id) override { return behind->Carica(id); }
        bool Salva(QString& id, const host::DatiCorvala& data) override { return behind->Salva(id, data); }
        bool Elimina(const QString& id) override { return behind->Elimina(id); }
        void Refresh() override { behind->Refresh(); }
        host::Corvala* behind = nullptr;
        int lists = 0;
    };

    struct Patient : host::Paziente {
        bool Init(const QString& id) override { return behind->Init(id); }
        QString ID() const override { return behind->ID(); }
        QString Cognome() const override { return behind->Cognome(); }
        QString Nome() const override { return behind->Nome(); }
        QString codicefiscale() const override { return behind->codicefiscale(); }
        QString idschema() const override { return behind->idschema(); }
        QString IDMedico() const override { return behind->IDMedico(); }
        host::Medico medico() const override { return behind->medico(); }
        host::Corvala& corvala() override {
            records.behind = &behind->corvala();
            return records;
        }
        host::Files& Files() override { return behind->Files(); }
        host::Eventi& Eventi() override { return behind->Eventi(); }
        host::Appunti& Appunti() override { return behind->Appunti(); }
        host::VisiteAmbDom& VisiteAmbDom() override { return behind->VisiteAmbDom(); }
        host::Scadenze& scadenze() override { return behind->scadenze(); }
        void GeneraEvento(host::Raccolta&) override { behind->GeneraEvento(behind->corvala()); }
        host::Paziente* behind = nullptr;
        Records records;
    };

    host::Host& behind_;
    Database database_{behind_};
    Patient patient_;
};
