#include "desk/people/UserEditor.h"

#include "desk/data/UserDirectory.h"
#include "desk/icons/DeskIcon.h"
#include "desk/people/TaxCode.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRegularExpression>

namespace desk {

namespace {

using platform::BESIDE;
using platform::bound;
using platform::FieldKind;

constexpr int SHORTEST_PASSWORD = 8;

constexpr platform::BoundField<UserData> FIELDS[] = {
    {{"", u"Utente", FieldKind::Area}},
    bound<&UserData::codice>(
        {"tbCodice", u"Co&dice:", FieldKind::Line, 0, u"Indicare il codice con cui l'utente accede."}),
    bound<&UserData::tipo>({"cbTipo", u"&Qualifica:", FieldKind::Choice, BESIDE}),
    bound<&UserData::Cognome>({"tbCognome", u"Co&gnome:", FieldKind::Line, 0, u"Indicare il cognome dell'utente."}),
    bound<&UserData::Nome>({"tbNome", u"&Nome:", FieldKind::Line, BESIDE, u"Indicare il nome dell'utente."}),
    {{"tbCodiceFiscale", u"Codice &fiscale:"},
     [](const UserData& user) { return QVariant(user.codicefiscale); },
     [](UserData& user, const QVariant& code) { user.codicefiscale = taxcode::normalized(code.toString()); }},
    {{"cbAttivita", u"Codice &attività:", FieldKind::FreeChoice, BESIDE, nullptr,
      u"Due lettere; OD apre i comandi di odontoiatria"},
     [](const UserData& user) { return QVariant(user.codiceAttivita); },
     [](UserData& user, const QVariant& activity) { user.codiceAttivita = activity.toString().toUpper(); }},
    bound<&UserData::attivo>({"ckAttivo", u"Può accedere al programma", FieldKind::Check}),
    {{"boPassword", u"Password", FieldKind::Area}},
    {{"tbPasswordAttuale", u"&Password attuale:", FieldKind::Password}},
    {{"ckTogliPassword", u"&Togli la password", FieldKind::Check, BESIDE}},
    {{"tbPasswordNuova", u"N&uova password:", FieldKind::Password}},
    {{"tbPasswordRipetuta", u"&Ripetere:", FieldKind::Password, BESIDE}}};

std::span<const platform::BoundField<UserData>> fields() {
    return FIELDS;
}

} // namespace

UserEditor::UserEditor(UserDirectory& users, SignIn& signIn, UserData signedIn, const UserData& user, QWidget* parent)
    : RecordForm(QStringLiteral("frmUtente"), parent)
    , users_(users)
    , signIn_(signIn)
    , signedIn_(std::move(signedIn))
    , user_(user) {
    setWindowIcon(deskIcon("utenti"));
    setWindowTitle(user.ID.isEmpty() ? QStringLiteral("Nuovo utente") : QStringLiteral("Dati dell'utente"));
    setFailure(QStringLiteral("L'utente non è stato salvato."));
    build(platform::fieldsOf(fields()));
    addChoice("cbTipo", QStringLiteral("Medico"), UserData::doctor);
    addChoice("cbTipo", QStringLiteral("Assistente"), UserData::assistant);
    for (const char* activity : {"OD", "AS"})
        addChoice("cbAttivita", QLatin1String(activity));
    connect(field<QCheckBox>("ckTogliPassword"), &QCheckBox::toggled, this, [this](bool none) {
        for (const char* each : {"tbPasswordNuova", "tbPasswordRipetuta"})
            field(each)->setEnabled(!none);
    });
    UserData shown = user;
    if (user.ID.isEmpty() && !signedIn_.isDoctor()) shown.tipo = UserData::assistant;
    platform::show(*this, fields(), shown);
    field("ckAttivo")->setEnabled(!isSignedIn());
    field("cbTipo")->setEnabled(signedIn_.isDoctor());
    field<QGroupBox>("boPassword")
        ->setTitle(user.asksPassword ? QStringLiteral("Password (impostata)")
                                     : QStringLiteral("Password (non impostata: si accede con un clic)"));
    field("ckTogliPassword")->setEnabled(user.asksPassword);
    askForPassword();
    start("tbCodice", QSize(640, 0));
}

/// Says whose password is wanted for a change.
void UserEditor::askForPassword() {
    const bool own = isSignedIn() || !user_.asksPassword;
    const bool resets = &whosePassword() == &signedIn_;
    setCaption("tbPasswordAttuale", own      ? QStringLiteral("&Password attuale:")
                                    : resets ? QStringLiteral("La &propria password:")
                                             : QStringLiteral("&Password dell'utente:"));
    auto* present = field<QLineEdit>("tbPasswordAttuale");
    present->setEnabled(user_.asksPassword);
    if (!user_.asksPassword) return;
    present->setPlaceholderText(resets ? QStringLiteral("quella di ") + signedIn_.fullName()
                                       : QStringLiteral("solo per cambiarla o toglierla"));
}

bool UserEditor::changesPassword() const {
    return value("ckTogliPassword").toBool() || !text("tbPasswordNuova").isEmpty() ||
           !text("tbPasswordRipetuta").isEmpty();
}

QString UserEditor::whatIsWrong() {
    static const QRegularExpression twoLetters(QStringLiteral("^[A-Z]{2}$"));
    const QString blank = RecordForm::whatIsWrong();
    if (!blank.isEmpty()) return blank;
    const UserData user = platform::typed(*this, fields(), user_);
    if (!user.codicefiscale.isEmpty() && !taxcode::isValid(user.codicefiscale))
        return refuse("tbCodiceFiscale", QStringLiteral("Il codice fiscale non è valido."));
    if (!twoLetters.match(user.codiceAttivita).hasMatch())
        return refuse("cbAttivita", QStringLiteral("Il codice attività è di due lettere, per esempio OD."));
    for (const UserData& other : users_.all()) {
        if (other.ID == user.ID) continue;
        if (other.codice.compare(user.codice, Qt::CaseInsensitive) == 0)
            return refuse("tbCodice", QStringLiteral("Un altro utente ha già questo codice."));
        if (!user.codicefiscale.isEmpty() && other.codicefiscale == user.codicefiscale)
            return refuse("tbCodiceFiscale", QStringLiteral("Un altro utente ha già questo codice fiscale."));
    }
    return changesPassword() ? whatIsWrongWithPassword() : QString();
}

QString UserEditor::whatIsWrongWithPassword() {
    if (!value("ckTogliPassword").toBool()) {
        if (text("tbPasswordNuova").size() < SHORTEST_PASSWORD)
            return refuse("tbPasswordNuova",
                          QStringLiteral("La password deve avere almeno %1 caratteri.").arg(SHORTEST_PASSWORD));
        if (text("tbPasswordNuova") != text("tbPasswordRipetuta"))
            return refuse("tbPasswordRipetuta", QStringLiteral("Le due password non sono uguali."));
    }
    return user_.asksPassword ? judgePassword() : QString();
}

// Who has no password proves nothing by signing in, so only one who has may reset that of another.
const UserData& UserEditor::whosePassword() const {
    const bool mayReset = user_.asksPassword && !isSignedIn() && signedIn_.isDoctor() && signedIn_.asksPassword;
    return mayReset ? signedIn_ : user_;
}

// Through the sign-in's own check, so that guessing is no faster here.
QString UserEditor::judgePassword() {
    const UserData& whose = whosePassword();
    switch (signIn_.attempt(whose.codice, text("tbPasswordAttuale"))) {
    case SignIn::Outcome::Accepted:
        return {};
    case SignIn::Outcome::Wrong:
        field<QLineEdit>("tbPasswordAttuale")->selectAll();
        return refuse("tbPasswordAttuale",
                      isSignedIn() ? QStringLiteral("La password attuale non è corretta.")
                                   : QStringLiteral("La password di %1 non è corretta.").arg(whose.fullName()));
    case SignIn::Outcome::Wait:
        break;
    }
    return refuse(
        "tbPasswordAttuale",
        QStringLiteral("Troppi tentativi errati: riprovare fra %1 secondi.").arg(signIn_.secondsToWait(whose.codice)));
}

QString UserEditor::store(QString& id) {
    UserData user = platform::typed(*this, fields(), user_);
    std::optional<QString> hash;
    if (changesPassword()) hash = value("ckTogliPassword").toBool() ? QString() : hashPassword(text("tbPasswordNuova"));
    if (!users_.save(user, hash)) return QStringLiteral("L'utente non è più nell'archivio.");
    id = user.ID;
    return {};
}

} // namespace desk
