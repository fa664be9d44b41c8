#include "desk/people/SignInWindow.h"

#include "desk/icons/DeskIcon.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"
#include "platform/Guarded.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace desk {

namespace {

QString waitText(int seconds) {
    const QString time = QStringLiteral("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QLatin1Char('0'));
    return QStringLiteral("Troppi tentativi errati. Si potrà riprovare fra %1.").arg(time);
}

QString shownAs(const UserData& user) {
    return user.fullName() + (user.isDoctor() ? QStringLiteral("\nMedico") : QStringLiteral("\nAssistente"));
}

} // namespace

SignInWindow::SignInWindow(SignIn& signIn, const QList<UserData>& users, QWidget* parent)
    : QDialog(parent)
    , signIn_(signIn)
    , users_(users)
    , list_(platform::form::named(new QListWidget(this), QStringLiteral("lbUtenti")))
    , caption_(new QLabel(QStringLiteral("&Password:"), this))
    , password_(platform::form::textBox(QStringLiteral("tbPassword"), this))
    , state_(platform::form::named(new QLabel(this), QStringLiteral("laStato")))
    , confirm_(platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Accedi"), this))
    , second_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmAccesso"));
    setWindowTitle(QStringLiteral("Tessara 5000 – Accesso"));
    setWindowIcon(deskIcon("tessara"));
    build();
    for (const UserData& each : std::as_const(users_))
        list_->addItem(new QListWidgetItem(deskIcon("paziente"), shownAs(each)));

    second_->setInterval(1000);
    connect(second_, &QTimer::timeout, this, &SignInWindow::showState);
    connect(list_, &QListWidget::currentRowChanged, this, &SignInWindow::select);
    connect(list_, &QListWidget::itemClicked, this, &SignInWindow::enterByClick);
    connect(confirm_, &QPushButton::clicked, this, &SignInWindow::enter);
    list_->setCurrentRow(0);
    (users_.size() == 1 ? static_cast<QWidget*>(password_) : list_)->setFocus();
    platform::FormRegistry::add(this);
}

void SignInWindow::build() {
    list_->setAccessibleName(QStringLiteral("Utenti"));
    list_->setIconSize(QSize(28, 28));
    list_->setSpacing(2);
    password_->setEchoMode(QLineEdit::Password);
    password_->setAccessibleName(QStringLiteral("Password"));
    caption_->setBuddy(password_);
    state_->setWordWrap(true);
    // Room for the longest text, so that nothing moves when one appears.
    state_->setMinimumHeight(2 * state_->fontMetrics().lineSpacing() + 4);
    state_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    confirm_->setDefault(true);
    QPushButton* leave = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Esci"), this);
    leave->setAutoDefault(false);
    connect(leave, &QPushButton::clicked, this, &QDialog::reject);

    auto* secret = new QHBoxLayout;
    secret->addWidget(caption_);
    secret->addWidget(password_, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 14, 16, 14);
    column->setSpacing(10);
    column->addWidget(platform::form::heading(QStringLiteral("laTitolo"), QStringLiteral("Chi accede?"), this));
    column->addWidget(list_, 1);
    column->addLayout(secret);
    column->addWidget(state_);
    column->addLayout(platform::form::buttonRow({confirm_, leave}));
    resize(420, 420);
    QWidget* const order[] = {list_, password_, confirm_, leave};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void SignInWindow::select(int row) {
    if (row < 0) return;
    chosen_ = row;
    complaint_.clear();
    password_->clear();
    showState();
}

void SignInWindow::enterByClick() {
    if (user().asksPassword)
        password_->setFocus();
    else
        enter();
}

void SignInWindow::enter() {
    SignIn::Outcome outcome = SignIn::Outcome::Wrong;
    const QString failure = platform::guarded([&] { outcome = signIn_.attempt(user().codice, password_->text()); });
    if (!failure.isEmpty()) return complain(failure);
    if (outcome == SignIn::Outcome::Accepted) return accept();
    complain(outcome == SignIn::Outcome::Wrong ? QStringLiteral("La password non è corretta.") : QString());
}

void SignInWindow::complain(const QString& text) {
    complaint_ = text;
    password_->selectAll();
    password_->setFocus();
    showState();
}

void SignInWindow::showState() {
    int wait = 0;
    const QString failure = platform::guarded([&] { wait = signIn_.secondsToWait(user().codice); });
    const bool needsPassword = user().asksPassword;
    caption_->setEnabled(needsPassword);
    password_->setEnabled(needsPassword);
    password_->setPlaceholderText(needsPassword ? QString() : QStringLiteral("non richiesta"));
    confirm_->setEnabled(wait == 0);
    if (wait > 0)
        second_->start();
    else
        second_->stop();
    const QString shown = wait > 0 ? waitText(wait) : !failure.isEmpty() ? failure : complaint_;
    state_->setText(shown);
    state_->setStyleSheet(QStringLiteral("color: #a02020;"));
}

} // namespace desk
