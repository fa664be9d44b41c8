#pragma once

#include "host/ListReading.h"

#include <QList>
#include <QString>
#include <QWidget>
#include <array>
#include <functional>
#include <memory>

class QDateEdit;
class QLabel;

namespace host {
class Paziente;
class Recordset;
} // namespace host

namespace platform {
class ReportGrid;
class ReportRecord;
} // namespace platform

/// What all practice-wide lists share: the period with cbFiltra, the title, the wait panel, the grid with its look, the
/// reload straight from the database that keeps the selected record, the bold marks of the open patient, and the way
/// from a row to its patient. A list gives its columns, its rows and what its commands do. The host owns it as a child
/// window. A row whose patient the host refuses is left out; one whose memo cannot be read shows what the row itself
/// gave. A list that the host cannot read shows no rows and says so.
class ElencoPeriodo : public QWidget {
    Q_OBJECT

public:
    struct Impostazioni {
        QString nome; ///< Name of the window.
        QString nomeGriglia;
        QString nomeTitolo;    ///< Name of the title's label.
        QString titolo;        ///< "ELENCO TRATTAMENTI "; the period follows it.
        QString t1;            ///< Record type code.
        int colonnaOrdine = 0; ///< Sorted by it, descending.
    };

protected:
    /// `prepara` must be called at the end of the constructor of the list.
    ElencoPeriodo(const Impostazioni& impostazioni, QWidget* parent);
    void prepara();

    virtual void costruisciColonne(platform::ReportGrid& grid) = 0;
    /// Fills the cells of one row, whose tag is already there; the tag of its first cell is the list's own. May throw.
    virtual void riempi(platform::ReportRecord& record, const host::Recordset& riga, host::Paziente& paziente) = 0;
    /// Columns whose text is bold for the open patient.
    virtual QList<int> colonnePaziente() const = 0;
    virtual void
    apri(const QString& id) = 0; ///< Opens the editor on a record, or a new one; its patient is the open one.
    virtual bool elimina(host::Paziente& paziente, const QString& id) = 0;
    virtual void stampa(const QString& id);

    void ricarica(const QString& idDaSelezionare); ///< Empty keeps the selected record.
    void aggiornaGrafica();                        ///< The bold marks only.
    platform::ReportGrid& griglia() const { return *griglia_; }

private:
    static std::unique_ptr<host::Paziente> paziente(const QString& id); ///< Null when the host has no such one.
    void costruisciFinestra();
    void leggi();
    void attempt(const std::function<void()>& step); ///< Tells what it throws.
    void aggiungi(const host::Recordset& riga);
    void segnaPaziente(platform::ReportRecord& record, const QString& idPaziente) const;
    void seleziona(const QString& id);
    void centraAttesa();
    void mostraMenu();
    void modifica(const platform::ReportRecord& record);
    void nuovo();
    void eliminaRigo(platform::ReportRecord* record);
    bool richiamaPaziente(const platform::ReportRecord& record) const;

    Impostazioni impostazioni_;
    std::array<QDateEdit*, 2> dtpData_{};
    QLabel* titolo_ = nullptr;
    QLabel* pbAttesa_ = nullptr;
    platform::ReportGrid* griglia_ = nullptr;
    ListReading reading_{[this] { leggi(); }, this};
};
