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

constexpr int TITLE_SIZE = 12;
constexpr int NOTE_SIZE = 10;
const QString INDENT = QStringLiteral("  ");

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

    auto* body = new QVBoxLayout;
    body->setContentsMargins(14, 12, 14, 14);
    body->setSpacing(12);
    body->addWidget(richTextBox1_, 1);
    body->addLayout(form::buttonRow({cbAnnulla_}));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(header());
    column->addLayout(body, 1);
    resize(520, 380);
    cbAnnulla_->setFocus();
    InizializzaForm(this);
    DisabilitaChiudi(this, true);
}

QWidget* frmAvvisi::header() {
    QFrame* picTop = platform::form::titleStrip(QString(), QString(), this);
    laTitoloForm_ = picTop->findChild<QLabel*>(QStringLiteral("laTitoloForm"));
    laTitoloForm_->setTextFormat(Qt::PlainText); // a name is never markup
    laTitoloForm_->setWordWrap(true);
    auto* sign = new QLabel(picTop);
    sign->setPixmap(platform::messageIcon(platform::MB_WARNING, 32, devicePixelRatioF()));
    static_cast<QGridLayout*>(picTop->layout())->addWidget(sign, 0, 0);
    return picTop;
}

void frmAvvisi::setPatient(const QString& fullName) {
    laTitoloForm_->setText(fullName);
    richTextBox1_->clear();
}

void frmAvvisi::add(const host::Appunto& note) {
    const bool first = richTextBox1_->document()->isEmpty();
    if (first) write(QStringLiteral("Appunti Importanti"), QColor(255, 0, 0), TITLE_SIZE, true, Qt::AlignHCenter);
    write(platform::regional().shortDate(note.Data.date()), QColor(255, 0, 0), NOTE_SIZE, true, Qt::AlignLeft);
    write(INDENT + note.m1, Qt::black, NOTE_SIZE, false, Qt::AlignLeft);
    richTextBox1_->moveCursor(QTextCursor::Start);
}

// Every text starts a line of its own, the first too: the box opens with an empty line.
void frmAvvisi::write(const QString& text, const QColor& colour, int pointSize, bool bold, Qt::Alignment alignment) {
    QTextBlockFormat block;
    block.setAlignment(alignment);
    QTextCharFormat letters;
    letters.setFontFamilies({QStringLiteral("Arial")});
    letters.setFontPointSize(pointSize);
    letters.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    letters.setForeground(colour);
    QTextCursor cursor(richTextBox1_->document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertBlock(block, letters);
    cursor.insertText(QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")), letters);
}
