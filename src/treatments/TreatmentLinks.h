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
class TreatmentLinks : public QObject {
    Q_OBJECT

public:
    explicit TreatmentLinks(QWidget* parent);

    void addPages(QTabWidget& tabs);
    void load(const clsItemTrattamento& item);
    void write(clsItemTrattamento& item) const;
    void pressNotes(int index); ///< As a click on cbAppunti: nothing when disabled.
    void setReadOnly();
    /// Attachments or movements that a new plan would leave behind.
    bool hasLinks() const;

private:
    struct Page {
        QWidget* widget = nullptr;
        platform::ReportGrid* grid = nullptr;
        std::array<QPushButton*, 3> buttons{};
    };
    Page createPage(const char* grid, const char* buttons, const QStringList& captions, QWidget* parent);
    QWidget* notesPage(QWidget* parent);

    QPlainTextEdit* annotations_ = nullptr; ///< tbDati(7)
    Page notes_;
    Page files_;
    Page journal_;
};
