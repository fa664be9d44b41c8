#pragma once

#include "documents/RowDialog.h"
#include "store/Amount.h"

#include <array>

class StagePanel;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

struct clsItemRigoTrattamento;

/// The editor of one row of a plan, with the intermediate stages of its service. Fills from a row and gives it back.
/// Modal, one per call of ModificaRigoTrattamento.
class frmEditRigoTrattamento : public RowDialog {
    Q_OBJECT

public:
    explicit frmEditRigoTrattamento(QWidget* parent = nullptr);
    ~frmEditRigoTrattamento() override;

    void load(const clsItemRigoTrattamento& row);
    void write(clsItemRigoTrattamento& row) const;

protected:
    void codeChanged() override;
    void applyService(const QString& serviceCode) override;
    void serviceTyped() override;
    void priceTyped() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildFields();
    void layOut();
    void orderFields();
    QGroupBox* workArea();
    QGroupBox* stagesArea();
    void wire();

    void teethTyped();
    Amount unitPrice() const; ///< The catalogue's while the row has none of its own.
    void chooseTeeth();
    void chooseUser(int kind, QLineEdit* field);
    void updateTotal();
    void showDates();
    void loadDates(const clsItemRigoTrattamento& row);

    QLineEdit* operator_ = nullptr;    ///< tbDati(3), with the tax code in its tag; the same for the assistant.
    QLineEdit* assistant_ = nullptr;   ///< tbDati(4)
    QLineEdit* teeth_ = nullptr;       ///< tbDati(5)
    QPlainTextEdit* tbNote_ = nullptr; ///< tbDati(6)
    QPushButton* cbFndOperatore_ = nullptr;
    QPushButton* cbFndAssistente_ = nullptr;
    QPushButton* cbFndDente_ = nullptr;
    QLineEdit* total_ = nullptr; ///< tbTotali(1)
    QComboBox* cbRaggrMerc_ = nullptr;
    std::array<QCheckBox*, 2> cbDate_{};
    std::array<QDateEdit*, 2> dtpData_{};
    QCheckBox* cbFuoriPreventivo_ = nullptr;
    std::array<StagePanel*, 4> pbStatus_{};
    QGroupBox* stagesArea_ = nullptr;
    bool isInvoiced_ = false; ///< An invoiced row keeps its price, even if that is 0.
};

/// Lets the user edit a row; true when accepted, and the row then holds the new values. Its number, invoice and keys
/// are left as they are.
bool ModificaRigoTrattamento(clsItemRigoTrattamento& row, bool readOnly, QWidget* parent = nullptr);
