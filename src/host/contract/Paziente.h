#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>
#include <memory>
#include <optional>

class QObject;

namespace host {

/// One row of `tblWorkspace`, as the record set gives it. Nulls of the database arrive as null strings or dates.
struct RigaCorvala {
    QString ID;
    QDateTime Data;
    QString idrif1;
    QString descrizione;
    QString m1;
    QString t1;
};

/// What a save writes; the host fills patient, operator and time stamps. `Data` is text in the regional short form.
struct DatiCorvala {
    QString Data;
    QString idrif1;
    QString descrizione;
    QString t1;
    QString m1;
};

/// A collection of the patient; the marker that `Paziente::GeneraEvento` takes. An empty `Lista` and a `Carica` of
/// nothing say that there is none: a host that could not read throws HostError instead.
class Raccolta {
public:
    virtual ~Raccolta() = default;
};

/// The record data set of one patient: the rows of this module, all types together.
class Corvala : public Raccolta {
public:
    virtual QList<RigaCorvala> Lista() = 0;
    virtual std::optional<RigaCorvala> Carica(const QString& id) = 0;
    /// Inserts when `id` is empty and writes the new identity into it; otherwise updates. One transaction. A host that
    /// guards the numbers throws NumberTakenError for a new document whose number another one has; every other failure
    /// answers false.
    virtual bool Salva(QString& id, const DatiCorvala& dati) = 0;
    virtual bool Elimina(const QString& id) = 0;
    virtual void Refresh() = 0;
};

struct VoceFile {
    QString ID;
    QString Descrizione;
    QDateTime Data;
    QString file; ///< The file's own name, without a folder.
};

/// Files stored under the patient.
class Files : public Raccolta {
public:
    virtual QList<VoceFile> Lista() = 0;
    virtual std::optional<VoceFile> Carica(const QString& id) = 0;
    virtual bool SalvaFile(QString& id, const QString& descrizione, const QString& path) = 0;
    virtual bool Elimina(const QString& id) = 0;
    virtual void Refresh() = 0;
    virtual QString EstraiFile(const QString& id) = 0; ///< Path of a temporary copy; empty when none can be made.
    virtual void Visualizza(const QString& id) = 0;
};

struct Evento {
    QString ID;
    QString Data; ///< Regional short form.
    QString descrizione;
    QString idfiles;
};

/// The patient's diary.
class Eventi : public Raccolta {
public:
    virtual QList<Evento> Lista() = 0;
    virtual bool Salva(Evento& evento) = 0; ///< Inserts when `ID` is empty and writes the new identity into it.
    virtual bool Elimina(const QString& id) = 0;
    virtual void Refresh() = 0;
};

struct Appunto {
    QString ID;
    QDateTime Data;
    QVariant b1; ///< Private, in the host's boolean form: read it through `Framework::ValoreBool`.
    QVariant b2; ///< Important, likewise.
    QString m1;  ///< Text.
};

class Appunti : public Raccolta {
public:
    virtual QList<Appunto> Lista() = 0;
    virtual bool Elimina(const QString& id) = 0;
    /// The host's window for a note, new when `id` is empty. Owned by the caller.
    virtual QObject* EditForm(const QString& id) = 0;
};

struct Visita {
    QString ID;
    QDateTime Data;
    QString descrizione;
};

class VisiteAmbDom : public Raccolta {
public:
    virtual QList<Visita> Lista() = 0;
    virtual QObject* EditForm(const QString& id) = 0;
};

class Scadenze : public Raccolta {
public:
    virtual QObject* EditForm(const QString& id) = 0;
};

struct Medico {
    QString Cognome;
    QString Nome;
    QString codicefiscale;
};

/// A patient. An unbound one, from `Framework::NewPaziente`, is bound by `Init`.
class Paziente {
public:
    virtual ~Paziente() = default;
    virtual bool Init(const QString& id) = 0; ///< False when the patient is not there; HostError when unread.
    virtual QString ID() const = 0;
    virtual QString Cognome() const = 0;
    virtual QString Nome() const = 0;
    virtual QString codicefiscale() const = 0;
    virtual QString idschema() const = 0;
    virtual QString IDMedico() const = 0;
    virtual Medico medico() const = 0; ///< All empty when the patient has no doctor.
    virtual Corvala& corvala() = 0;
    virtual host::Files& Files() = 0;
    virtual host::Eventi& Eventi() = 0;
    virtual host::Appunti& Appunti() = 0;
    virtual host::VisiteAmbDom& VisiteAmbDom() = 0;
    virtual host::Scadenze& scadenze() = 0;
    /// Makes the host refresh what depends on the given collection of this patient.
    virtual void GeneraEvento(Raccolta& source) = 0;
};

} // namespace host
