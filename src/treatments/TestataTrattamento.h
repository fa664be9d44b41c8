#pragma once

#include <QDate>
#include <QString>
#include <QWidget>
#include <array>
#include <optional>

class QDateEdit;
class QLineEdit;

struct clsItemTrattamento;

/// The header of the plan editor: number, date, description, advance invoice and doctor, in tbDati(0) to tbDati(12) and
/// dtpData. Fills from a record, checks what was typed, and gives it back to a record. Owned by the window.
class TestataTrattamento : public QWidget {
    Q_OBJECT

public:
    struct Mancanza {
        QString messaggio;
        QWidget* campo = nullptr; ///< Takes the focus.
    };

    explicit TestataTrattamento(QWidget* parent);

    void carica(const clsItemTrattamento& item); ///< The number of a saved plan is then fixed.
    void prepara();                              ///< A new plan of the open patient.
    void scrivi(clsItemTrattamento& item) const;

    /// The first thing that keeps the plan from being saved, or nothing; the number is then in its final form.
    std::optional<Mancanza> verifica();
    QString anno() const;
    QString progressivo() const;
    QString data() const; ///< In the regional short form.
    void setProgressivo(const QString& progressivo);
    /// Reference of the advance invoice; empty unless both parts are there.
    QString fatturaAnticipo() const;
    /// The same as typed, as new rows take it.
    QString fatturaAnticipoScritta() const;

signals:
    void fatturaAnticipoCambiata();

private:
    QLineEdit* campo(int indice) const { return tbDati_[static_cast<std::size_t>(indice)]; }
    QLineEdit* nuovoCampo(int indice, int larghezza);
    void disponi();

    std::array<QLineEdit*, 13> tbDati_{}; ///< Some numbers are not in use.
    QDateEdit* dtpData_ = nullptr;
};
