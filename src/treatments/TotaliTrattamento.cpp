#include "treatments/TotaliTrattamento.h"

#include "platform/FormLayout.h"
#include "platform/Regional.h"
#include "treatments/TotaliRighi.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

QString importo(float valore) {
    return platform::regional().format(valore, QStringLiteral("###0.00"));
}

} // namespace

TotaliTrattamento::TotaliTrattamento(QWidget* parent)
    : QWidget(parent) {
    const std::array<QString, 4> didascalie{QStringLiteral("terminati:"), QStringLiteral("da terminare:"),
                                            QStringLiteral("lav. fatturati:"), QStringLiteral("ant. non usati:")};
    const std::array<QString, 4> spiegazioni{QStringLiteral("Lavori terminati"), QStringLiteral("Lavori da terminare"),
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
        box->setToolTip(spiegazioni[i]);
        box->setAccessibleName(spiegazioni[i]);
        auto* caption = new QLabel(didascalie[i], this);
        caption->setBuddy(box);
        if (i > 0) row->addSpacing(12);
        row->addWidget(caption);
        row->addWidget(box);
        tbTotale_[i] = box;
    }
    aggiornaLavori({});
    aggiornaFatturazione();
}

void TotaliTrattamento::aggiornaLavori(const QList<clsItemRigoTrattamento>& righi) {
    const TotaliRighi totali = calcolaTotali(righi);
    tbTotale_[0]->setText(importo(totali.terminati));
    tbTotale_[1]->setText(importo(totali.daTerminare));
}

// Invoices and payments are not kept by this version: nothing is paid and no advance is open.
void TotaliTrattamento::aggiornaFatturazione() {
    tbTotale_[2]->setText(importo(0));
    tbTotale_[3]->setText(importo(0));
}
