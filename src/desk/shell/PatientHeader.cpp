#include "desk/shell/PatientHeader.h"

#include "desk/data/PatientData.h"
#include "platform/Clock.h"
#include "platform/Regional.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>

namespace desk {

namespace {

int ageAt(const QDate& birth, const QDate& day) {
    const bool birthdayToCome =
        day.month() < birth.month() || (day.month() == birth.month() && day.day() < birth.day());
    return day.year() - birth.year() - (birthdayToCome ? 1 : 0);
}

QString birthText(const PatientData& patient) {
    if (!patient.dataNascita.isValid()) return {};
    const int age = ageAt(patient.dataNascita, platform::today());
    const QString years = age == 1 ? QStringLiteral("1 anno") : QStringLiteral("%1 anni").arg(age);
    const QString born = patient.sesso == QLatin1String("F") ? QStringLiteral("nata") : QStringLiteral("nato");
    return QStringLiteral("%1, %2 il %3").arg(years, born, platform::regional().shortDate(patient.dataNascita));
}

} // namespace

PatientHeader::PatientHeader(const QIcon& icon, QWidget* parent)
    : QFrame(parent)
    , name_(addLabel("laNome"))
    , birth_(addLabel("laNascita"))
    , taxCode_(addLabel("laCodiceFiscale"))
    , doctor_(addLabel("laMedico"))
    , telephone_(addLabel("laTelefono")) {
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(14, 10, 14, 10);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(2);
    auto* picture = new QLabel(this);
    picture->setPixmap(icon.pixmap(QSize(40, 40), devicePixelRatioF()));
    grid->addWidget(picture, 0, 0, 2, 1);
    QFont large = name_->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    name_->setFont(large);
    grid->addWidget(name_, 0, 1, 1, 4);
    int column = 1;
    for (QLabel* label : {birth_, taxCode_, doctor_, telephone_}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse); // to copy them into a letter
        grid->addWidget(label, 1, column++);
    }
    grid->setColumnStretch(column, 1);
}

QLabel* PatientHeader::addLabel(const char* name) {
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

void PatientHeader::tell(const PatientData& patient, const QString& doctor) {
    name_->setText(patient.Cognome + QLatin1Char(' ') + patient.Nome);
    birth_->setText(birthText(patient));
    taxCode_->setText(QStringLiteral("Codice fiscale: ") + patient.codicefiscale);
    doctor_->setText(QStringLiteral("Medico: ") + (doctor.isEmpty() ? QStringLiteral("nessuno") : doctor));
    telephone_->setText(patient.telefono.isEmpty() ? QString() : QStringLiteral("Tel. ") + patient.telefono);
}

void PatientHeader::clear() {
    for (QLabel* label : {name_, birth_, taxCode_, doctor_, telephone_})
        label->clear();
}

} // namespace desk
