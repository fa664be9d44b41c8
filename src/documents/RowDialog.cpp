#include "documents/RowDialog.h"

#include "catalogues/clsServizi.h"
#include "catalogues/modSceltaServizio.h"
#include "catalogues/modServizi.h"
#include "documents/CellNotice.h"
#include "documents/ServiceSearch.h"
#include "host/context.h"
#include "host/modForm.h"
#include "platform/FormLayout.h"
#include "platform/Regional.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>

namespace form = platform::form;

RowDialog::RowDialog(const QString& name, const QString& title, const Fields& fields, QWidget* parent)
    : QDialog(parent)
    , laProgressivo_(form::heading(QStringLiteral("laProgressivo"), QString(), this))
    , code_(form::textBox(form::arrayName("tbDati", 0), this))
    , description_(form::textBox(form::arrayName("tbDati", fields.description), this))
    , price_(form::textBox(fields.price, this))
    , cbFndArt_(searchButton(QStringLiteral("cbFndArt"), QStringLiteral("Cerca il servizio")))
    , cbAccetta_(form::button(QStringLiteral("cbAccetta"), QStringLiteral("Accetta"), this))
    , cbAnnulla_(form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this))
    , laOUTB_(form::named(new QLabel(this), QStringLiteral("laOUTB")))
    , tmCavolo_(new QTimer(this)) {
    setObjectName(name);
    setWindowTitle(TitoloForm(title));
    price_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cbAccetta_->setAutoDefault(false);
    cbAnnulla_->setAutoDefault(false);
    laOUTB_->hide();
    tmCavolo_->setObjectName(QStringLiteral("tmCavolo"));
    tmCavolo_->setSingleShot(true);
    tmCavolo_->setInterval(0);
    wire();
}

void RowDialog::wire() {
    connect(cbAccetta_, &QPushButton::clicked, this, &RowDialog::acceptRow);
    connect(cbAnnulla_, &QPushButton::clicked, this, &RowDialog::reject);
    connect(cbFndArt_, &QPushButton::clicked, this, &RowDialog::searchService);
    for (QLineEdit* field : {code_, description_}) {
        connect(field, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (servicesearch::isAsked(text)) tmCavolo_->start();
        });
    }
    connect(tmCavolo_, &QTimer::timeout, this, [this] {
        for (QLineEdit* field : {code_, description_})
            field->setText(servicesearch::words(field->text()));
        searchService();
    });
    connect(code_, &QLineEdit::textChanged, this, [this] { codeChanged(); });
    connect(code_, &QLineEdit::editingFinished, this, &RowDialog::codeTyped);
    connect(price_, &QLineEdit::editingFinished, this, [this] { priceTyped(); });
    for (QWidget* field : {code_, description_, price_})
        addField(field);
}

// --------------------------------------------------------------------------------------------------------- the fields

void RowDialog::addField(QWidget* field) {
    field->installEventFilter(this);
}

QPushButton* RowDialog::searchButton(const QString& name, const QString& purpose) {
    QPushButton* search = form::button(name, QStringLiteral("..."), this);
    search->setAutoDefault(false);
    search->setFixedWidth(34);
    search->setToolTip(purpose);
    search->setAccessibleName(purpose);
    return search;
}

QWidget* RowDialog::withSearch(QLineEdit* field, QPushButton* search) {
    auto* box = new QWidget(this);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field, 1);
    row->addWidget(search);
    box->setFocusProxy(field);
    return box;
}

QHBoxLayout* RowDialog::titleRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(form::heading(QStringLiteral("laTitoloForm"), QStringLiteral("RIGO"), this));
    row->addWidget(laProgressivo_);
    row->addStretch(1);
    return row;
}

QHBoxLayout* RowDialog::footer() {
    return form::buttonRow({cbAccetta_, cbAnnulla_});
}

void RowDialog::endOrder(QWidget* lastField) {
    setTabOrder(lastField, cbAccetta_);
    setTabOrder(cbAccetta_, cbAnnulla_);
    code_->setFocus();
}

void RowDialog::priceTyped() {
    const QString written = price_->text();
    const bool isAmount = written.isEmpty() || platform::regional().toNumber(written);
    form::setNotice(price_, isAmount ? platform::Notice::None : platform::Notice::Error,
                    isAmount ? QString() : QStringLiteral("Non è un importo: non verrà memorizzato"));
}

bool RowDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return QDialog::eventFilter(watched, event);
    form::focusNextField(static_cast<QWidget*>(watched));
    return true;
}

// --------------------------------------------------------------------------------------------------------- the service

void RowDialog::loadService(const QString& number, const QString& serviceOfRow, const QString& text) {
    applied_ = serviceCode(serviceOfRow);
    laProgressivo_->setText(number);
    code_->setText(serviceOfRow);
    description_->setText(text);
    noticeCode();
}

QString RowDialog::service() const {
    const QString known = serviceCode(code_->text());
    return known.isEmpty() ? code_->text() : known;
}

void RowDialog::codeTyped() {
    const QString known = serviceCode(code_->text());
    if (!known.isEmpty()) {
        const QSignalBlocker sameService(code_); // in other letters, and what came with it stays
        code_->setText(known);
    }
    noticeCode();
    if (known.isEmpty() || known == applied_) return;
    applied_ = known;
    serviceTyped();
}

void RowDialog::noticeCode() {
    const CellNotice notice = noticeOfService(code_->text());
    form::setNotice(code_, notice.kind, notice.text);
}

void RowDialog::searchService() {
    QString chosen = code_->text();
    QString text = description_->text();
    if (!ScegliServizio(true, chosen, text)) return;
    code_->setText(chosen);
    description_->setText(text);
    takeService();
}

void RowDialog::takeService() {
    applied_ = serviceCode(code_->text());
    noticeCode();
    const clsItemServizio* found = oServizi ? oServizi->Carica(applied_) : nullptr;
    if (found && description_->text().trimmed().isEmpty()) description_->setText(found->descrizione);
    applyService(code_->text());
}

// ------------------------------------------------------------------------------------------------------------- the end

void RowDialog::setReadOnly() {
    cbAccetta_->setEnabled(false);
    cbAnnulla_->setText(QStringLiteral("Chiudi"));
}

bool RowDialog::isAccepted() const {
    return laOUTB_->text() == QLatin1String("OK");
}

void RowDialog::acceptRow() {
    codeTyped();
    laOUTB_->setText(QStringLiteral("OK"));
    done(QDialog::Accepted);
}

void RowDialog::reject() {
    laOUTB_->clear();
    done(QDialog::Rejected);
}
