#include "treatments/PannelloStadio.h"

#include "platform/Clock.h"
#include "platform/FormLayout.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>

namespace {

const char* const TAG = "Tag";

// A field that comes and goes keeps its place, so that the line does not jump.
void tienePosto(QWidget* widget) {
    QSizePolicy regola = widget->sizePolicy();
    regola.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(regola);
}

} // namespace

PannelloStadio::PannelloStadio(int indice, QWidget* parent)
    : QWidget(parent) {
    using namespace platform::form;
    setObjectName(arrayName("pbStatus", indice));
    laStatus_ = named(new QLabel(this), arrayName("laStatus", indice));
    laStatus_->setWordWrap(true);
    cbStatusINI_ = named(new QCheckBox(QStringLiteral("Lavori Iniziati"), this), arrayName("cbStatusINI", indice));
    dtpStatusINI_ = dateBox(arrayName("dtpStatusINI", indice), this);
    cbStatusFIN_ = named(new QCheckBox(QStringLiteral("Lavori Terminati"), this), arrayName("cbStatusFIN", indice));
    dtpStatusFIN_ = dateBox(arrayName("dtpStatusFIN", indice), this);
    auto* riga = new QHBoxLayout(this);
    riga->setContentsMargins(0, 0, 0, 0);
    riga->addWidget(laStatus_, 1);
    for (QWidget* campo : campi()) {
        tienePosto(campo);
        riga->addWidget(campo);
    }
    connect(cbStatusINI_, &QCheckBox::toggled, this, [this](bool iniziato) {
        if (!iniziato) cbStatusFIN_->setChecked(false); // no end without a start
        mostraDate();
    });
    connect(cbStatusFIN_, &QCheckBox::toggled, this, &PannelloStadio::mostraDate);
    libera();
}

void PannelloStadio::libera() {
    setProperty(TAG, QString());
    cbStatusINI_->setChecked(false);
    cbStatusFIN_->setChecked(false);
    dtpStatusINI_->setDate(platform::today());
    dtpStatusFIN_->setDate(platform::today());
    mostraDate();
    hide();
}

void PannelloStadio::usa(const QString& nome) {
    setProperty(TAG, QStringLiteral("OK"));
    laStatus_->setText(nome);
    laStatus_->setToolTip(nome);
    show();
}

bool PannelloStadio::inUso() const {
    return property(TAG).toString() == QLatin1String("OK");
}

void PannelloStadio::setDate(const StadioLavoro& stadio) {
    cbStatusINI_->setChecked(stadio.inizio.isValid());
    if (stadio.inizio.isValid()) dtpStatusINI_->setDate(stadio.inizio);
    cbStatusFIN_->setChecked(stadio.fine.isValid());
    if (stadio.fine.isValid()) dtpStatusFIN_->setDate(stadio.fine);
}

StadioLavoro PannelloStadio::stadio() const {
    StadioLavoro stadio;
    stadio.nome = laStatus_->text();
    if (!cbStatusINI_->isChecked()) return stadio;
    stadio.inizio = dtpStatusINI_->date();
    if (cbStatusFIN_->isChecked()) stadio.fine = dtpStatusFIN_->date();
    return stadio;
}

QList<QWidget*> PannelloStadio::campi() const {
    return {cbStatusINI_, dtpStatusINI_, cbStatusFIN_, dtpStatusFIN_};
}

void PannelloStadio::mostraDate() {
    const bool iniziato = cbStatusINI_->isChecked();
    dtpStatusINI_->setVisible(iniziato);
    cbStatusFIN_->setVisible(iniziato);
    dtpStatusFIN_->setVisible(iniziato && cbStatusFIN_->isChecked());
}
