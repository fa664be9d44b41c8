#pragma once

#include "store/RecordNumber.h"

#include <QString>
#include <QWidget>
#include <array>
#include <optional>

class QComboBox;
class QDateEdit;
class QGridLayout;
class QHBoxLayout;
class QLineEdit;

struct WorkspaceItem;

/// The head of every document: the number in tbDati(0) and tbDati(1), with cbBisTris where a kind has suffixes, the
/// date in dtpData, the description in tbDati(2). Fills from a record, checks what was typed, gives it back to a
/// record. A kind puts its own fields, and the doctor where it has one, into the rows below. Owned by the window.
class DocumentHeader : public QWidget {
    Q_OBJECT

public:
    struct Missing {
        QString message;
        QWidget* field = nullptr; ///< Takes the focus.
    };

    DocumentHeader(const QString& t1, QWidget* parent);

    void load(const WorkspaceItem& item);
    void prepare(); ///< A new document of the open patient. Passes on a HostError.
    void write(WorkspaceItem& item) const;
    /// The first thing that keeps the document from being saved, or nothing; the number is then in its final form.
    std::optional<Missing> check();

    RecordNumber number() const;
    void fixNumber(const RecordNumber& number); ///< That of a document that is stored, which nobody changes any more.
    QString date() const;                       ///< In the regional short form.

    void setDoctor(const QString& taxCode, const QString& name);
    QString doctor() const; ///< Tax code; empty in a kind without doctor.
    QString doctorName() const;

protected:
    enum Field { YEAR = 0, PROGRESSIVE = 1, DESCRIPTION = 2 };

    // Fields are made in the order in which Tab comes by.
    QLineEdit* newField(int index, int width, const QString& name); ///< A width of 0 stretches.
    QWidget* pair(QLineEdit* first, QLineEdit* second);             ///< "2026 - 0007"
    void addSuffixes();
    void addDoctor(int row, int column, int codeField, int nameField);
    QLineEdit* field(int index) const { return tbDati_[static_cast<std::size_t>(index)]; }
    QGridLayout& grid() { return *grid_; } ///< Captions in even columns, fields in odd ones; row 0 is taken.

private:
    bool isNew() const;

    QString t1_;
    std::array<QLineEdit*, 13> tbDati_{}; ///< Some numbers are not in use.
    QDateEdit* dtpData_ = nullptr;
    QComboBox* cbBisTris_ = nullptr;
    QLineEdit* doctor_ = nullptr;
    QLineEdit* doctorName_ = nullptr;
    QString suffix_; ///< Of a stored number, in a kind that offers none.
    QHBoxLayout* numberRow_ = nullptr;
    QGridLayout* grid_;
};
