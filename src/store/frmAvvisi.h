#pragma once

#include "host/contract/Paziente.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTextEdit;

/// The important notes of a patient, shown before the work on the patient begins: modal, and left only by its button,
/// so that nobody passes them over by closing a frame. Made by MostraAppuntiImportanti for one look.
class frmAvvisi : public QDialog {
    Q_OBJECT

public:
    explicit frmAvvisi(QWidget* parent = nullptr);

    void setPatient(const QString& fullName);
    void add(const host::Appunto& note);

private:
    QWidget* header();
    void write(const QString& text, const QColor& colour, int pointSize, bool bold, Qt::Alignment alignment);

    QLabel* laTitoloForm_;
    QTextEdit* richTextBox1_;
    QPushButton* cbAnnulla_;
};
