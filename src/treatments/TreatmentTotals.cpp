#include "treatments/TreatmentTotals.h"

#include "platform/FormLayout.h"
#include "treatments/RowTotals.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

TreatmentTotals::TreatmentTotals(QWidget* parent)
    : QWidget(parent) {
    const std::array<QString, 4> captions{QStringLiteral("terminati:"), QStringLiteral("da terminare:"),
                                          QStringLiteral("lav. fatturati:"), QStringLiteral("ant. non usati:")};
    const std::array<QString, 4> explanations{QStringLiteral("Lavori terminati"), QStringLiteral("Lavori da terminare"),
                                              QStringLiteral("Fatture con pagamenti avvenuti"),
                                              QStringLiteral("Anticipi non utilizzati")};
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < tbTotale_.size(); ++i) {
        QLineEdit* box = platform::form::textBox(platform::form::arrayName("tbTotale", static_cast<int>(i)), this);
        box->setReadOnly(true);
        box->setFocusPolicy(Qt::NoFocus);
        box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        box->setFixedWidth(90);
        box->setToolTip(explanations[i]);
        box->setAccessibleName(explanations[i]);
        auto* caption = new QLabel(captions[i], this);
        caption->setBuddy(box);
        if (i > 0) row->addSpacing(12);
        row->addWidget(caption);
        row->addWidget(box);
        tbTotale_[i] = box;
    }
    updateWork({});
    updateBilling();
}

void TreatmentTotals::updateWork(const RowTotals& work) {
    tbTotale_[0]->setText(work.finished.text());
    tbTotale_[1]->setText(work.toFinish.text());
}

// Invoices and payments are not kept by this version: nothing is paid and no advance is open.
void TreatmentTotals::updateBilling() {
    tbTotale_[2]->setText(Amount().text());
    tbTotale_[3]->setText(Amount().text());
}
