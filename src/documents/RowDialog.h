#pragma once

#include <QDialog>
#include <QString>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

/// The editor of one row of a document, whatever its kind: number laProgressivo, code tbDati(0) with its search
/// cbFndArt, description, price; Enter goes on as Tab does, a "?" in code or description asks for the search through
/// the catalogue by the timer tmCavolo. The hidden label laOUTB reads "OK" after cbAccetta. Modal, one per row; a kind
/// lays the fields out with its own, and hides itself before it goes, so that the field which loses the keyboard then
/// has its say while the window is whole.
class RowDialog : public QDialog {
    Q_OBJECT

public:
    void setReadOnly(); ///< The row can be seen but not changed.
    bool isAccepted() const;
    void reject() override;

protected:
    /// Which fields of the kind hold what all rows have.
    struct Fields {
        int description; ///< In tbDati.
        QString price;   ///< Its name.
    };

    RowDialog(const QString& name, const QString& title, const Fields& fields, QWidget* parent);

    QLineEdit* code() const { return code_; }
    QLineEdit* description() const { return description_; }
    QLineEdit* price() const { return price_; }
    QPushButton* codeSearch() const { return cbFndArt_; }

    void addField(QWidget* field); ///< Enter in it goes on as Tab does.
    QPushButton* searchButton(const QString& name, const QString& purpose);
    QWidget* withSearch(QLineEdit* field, QPushButton* search);
    QHBoxLayout* titleRow();
    QHBoxLayout* footer();
    /// Puts the buttons behind the last of the fields in the order of Tab, which the first field begins.
    void endOrder(QWidget* lastField);

    void loadService(const QString& number, const QString& serviceOfRow, const QString& text);
    QString service() const; ///< As the catalogue spells it; what it does not have as typed.
    void takeService();      ///< The one in the field is applied, as one that was searched for.

    /// Another text in the code field, while it is typed.
    virtual void codeChanged() {}
    /// What a service gives the row: its price, its group; the description where there is none is given already.
    virtual void applyService(const QString& serviceCode) = 0;
    /// Another service of the catalogue was typed; it is applied.
    virtual void serviceTyped() { takeService(); }
    virtual void priceTyped(); ///< On leaving the field.

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void wire();
    void codeTyped();
    void searchService();
    void noticeCode();
    void acceptRow();

    QLabel* laProgressivo_;
    QLineEdit* code_;
    QLineEdit* description_;
    QLineEdit* price_;
    QPushButton* cbFndArt_;
    QPushButton* cbAccetta_;
    QPushButton* cbAnnulla_;
    QLabel* laOUTB_;
    QTimer* tmCavolo_;
    QString applied_; ///< The service of the catalogue that was applied last.
};
