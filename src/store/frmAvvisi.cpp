#include "store/frmAvvisi.h"

#include "host/modForm.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/MessageIcon.h"
#include "platform/Regional.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {

constexpr int CORPO_TITOLO = 12;
constexpr int CORPO_APPUNTO = 10;
const QString RIENTRO = QStringLiteral("  ");

} // namespace

frmAvvisi::frmAvvisi(QWidget* parent)
    : QDialog(parent) {
    namespace form = platform::form;
    setObjectName(QStringLiteral("frmAvvisi"));
    setWindowTitle(TitoloForm(QStringLiteral("Appunti paziente")));

    richTextBox1_ = form::named(new QTextEdit(this), QStringLiteral("RichTextBox1"));
    richTextBox1_->setReadOnly(true);
    richTextBox1_->setTabChangesFocus(true);
    richTextBox1_->setAccessibleName(QStringLiteral("Appunti importanti"));
    cbAnnulla_ = form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Chiudi"), this);
    cbAnnulla_->setDefault(true);
    connect(cbAnnulla_, &QPushButton::clicked, this, &QDialog::reject);

    auto* corpo = new QVBoxLayout;
    corpo->setContentsMargins(14, 12, 14, 14);
    corpo->setSpacing(12);
    corpo->addWidget(richTextBox1_, 1);
    corpo->addLayout(form::buttonRow({cbAnnulla_}));
    auto* colonna = new QVBoxLayout(this);
    colonna->setContentsMargins(0, 0, 0, 0);
    colonna->setSpacing(0);
    colonna->addWidget(testata());
    colonna->addLayout(corpo, 1);
    resize(520, 380);
    cbAnnulla_->setFocus();
    InizializzaForm(this);
    DisabilitaChiudi(this, true);
}

QWidget* frmAvvisi::testata() {
    QFrame* picTop = platform::form::titleStrip(QString(), QString(), this);
    laTitoloForm_ = picTop->findChild<QLabel*>(QStringLiteral("laTitoloForm"));
    laTitoloForm_->setTextFormat(Qt::PlainText); // a name is never markup
    laTitoloForm_->setWordWrap(true);
    auto* segno = new QLabel(picTop);
    segno->setPixmap(platform::messageIcon(platform::MB_WARNING, 32, devicePixelRatioF()));
    static_cast<QGridLayout*>(picTop->layout())->addWidget(segno, 0, 0);
    return picTop;
}

void frmAvvisi::setPaziente(const QString& cognomeENome) {
    laTitoloForm_->setText(cognomeENome);
    richTextBox1_->clear();
}

void frmAvvisi::aggiungi(const host::Appunto& appunto) {
    const bool primo = richTextBox1_->document()->isEmpty();
    if (primo) scrivi(QStringLiteral("Appunti Importanti"), QColor(255, 0, 0), CORPO_TITOLO, true, Qt::AlignHCenter);
    scrivi(platform::regional().shortDate(appunto.Data.date()), QColor(255, 0, 0), CORPO_APPUNTO, true, Qt::AlignLeft);
    scrivi(RIENTRO + appunto.m1, Qt::black, CORPO_APPUNTO, false, Qt::AlignLeft);
    richTextBox1_->moveCursor(QTextCursor::Start);
}

// Every text starts a line of its own, the first too: the box opens with an empty line.
void frmAvvisi::scrivi(const QString& testo, const QColor& colore, int corpo, bool grassetto,
                       Qt::Alignment allineamento) {
    QTextBlockFormat blocco;
    blocco.setAlignment(allineamento);
    QTextCharFormat carattere;
    carattere.setFontFamilies({QStringLiteral("Arial")});
    carattere.setFontPointSize(corpo);
    carattere.setFontWeight(grassetto ? QFont::Bold : QFont::Normal);
    carattere.setForeground(colore);
    QTextCursor cursore(richTextBox1_->document());
    cursore.movePosition(QTextCursor::End);
    cursore.insertBlock(blocco, carattere);
    cursore.insertText(QString(testo).replace(QLatin1String("\r\n"), QLatin1String("\n")), carattere);
}
