#pragma once

#include <QWidget>
#include <array>

class QPlainTextEdit;
class QPushButton;
class QTabWidget;

namespace platform {
class ReportGrid;
}

struct clsItemTrattamento;

/// What the plan editor keeps beside the rows: annotations, the host's notes of the patient, attachments and stock
/// movements, each a page with a grid and three buttons. Notes, attachments and movements are not there yet, so their
/// buttons are disabled. Owned by the window.
class CollegamentiTrattamento : public QObject {
    Q_OBJECT

public:
    explicit CollegamentiTrattamento(QWidget* parent);

    void aggiungiPagine(QTabWidget& schede);
    void carica(const clsItemTrattamento& item);
    void scrivi(clsItemTrattamento& item) const;
    void premiAppunti(int indice); ///< As a click on cbAppunti: nothing when disabled.
    void setSolaLettura();
    /// Attachments or movements that a new plan would leave behind.
    bool haCollegamenti() const;

private:
    struct Pagina {
        QWidget* widget = nullptr;
        platform::ReportGrid* griglia = nullptr;
        std::array<QPushButton*, 3> bottoni{};
    };
    Pagina creaPagina(const char* griglia, const char* bottoni, const QStringList& didascalie, QWidget* parent);
    QWidget* paginaAppunti(QWidget* parent);

    QPlainTextEdit* annotazioni_ = nullptr; ///< tbDati(7)
    Pagina appunti_;
    Pagina allegati_;
    Pagina primaNota_;
};
