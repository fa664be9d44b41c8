#pragma once

#include "store/Amount.h"

#include <QDialog>
#include <QList>
#include <array>

class StagePanel;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTimer;

struct clsItemRigoTrattamento;

/// The editor of one row of a plan, with the intermediate stages of its service. Fills from a row and gives it back;
/// the hidden label laOUTB reads "OK" after "Accetta". Modal, one per call of ModificaRigoTrattamento.
class frmEditRigoTrattamento : public QDialog {
    Q_OBJECT

public:
    explicit frmEditRigoTrattamento(QWidget* parent = nullptr);
    ~frmEditRigoTrattamento() override;

    void load(const clsItemRigoTrattamento& row);
    void write(clsItemRigoTrattamento& row) const;
    void setReadOnly(); ///< The row can be seen but not changed.
    bool isAccepted() const;

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Places in tbDati_ and search_.
    enum Field { SERVICE = 0, DESCRIPTION = 2, OPERATOR = 3, ASSISTANT = 4, TEETH = 5 };
    enum Search { SEARCH_SERVICE, SEARCH_OPERATOR, SEARCH_ASSISTANT, SEARCH_TEETH };

    void buildFields();
    void layOut();
    void orderFields();
    QGroupBox* workArea();
    QGroupBox* stagesArea();
    void wire();
    void acceptRow();

    void serviceChanged();
    void serviceTyped();
    void teethTyped();
    void priceTyped();
    Amount price() const; ///< The catalogue's while the row has none of its own.
    void searchService();
    void applyService();
    void chooseTeeth();
    void chooseUser(int kind, QLineEdit* field);
    void updateTotal();
    void noticeService();
    void showDates();
    void loadDates(const clsItemRigoTrattamento& row);

    QLabel* laProgressivo_ = nullptr;
    std::array<QLineEdit*, 6> tbDati_{}; ///< Number 1 is not in use.
    QPlainTextEdit* tbNote_ = nullptr;   ///< tbDati(6)
    std::array<QPushButton*, 4> search_{};
    std::array<QLineEdit*, 2> tbTotali_{};
    QComboBox* cbRaggrMerc_ = nullptr;
    std::array<QCheckBox*, 2> cbDate_{};
    std::array<QDateEdit*, 2> dtpData_{};
    QCheckBox* cbFuoriPreventivo_ = nullptr;
    std::array<StagePanel*, 4> pbStatus_{};
    QGroupBox* stagesArea_ = nullptr;
    QLabel* laOUTB_ = nullptr;
    QPushButton* cbAccetta_ = nullptr;
    QPushButton* cbAnnulla_ = nullptr;
    QTimer* tmCavolo_ = nullptr;
    QString service_;         ///< The service of the catalogue that was applied last.
    bool isInvoiced_ = false; ///< An invoiced row keeps its price, even if that is 0.
};

/// Lets the user edit a row; true when accepted, and the row then holds the new values. Its number, invoice and keys
/// are left as they are.
bool ModificaRigoTrattamento(clsItemRigoTrattamento& row, bool readOnly, QWidget* parent = nullptr);
