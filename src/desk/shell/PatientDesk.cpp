#include "desk/shell/PatientDesk.h"

#include "desk/clinical/ClinicalRooms.h"
#include "desk/shell/PanelPage.h"
#include "platform/Clock.h"
#include "platform/FormRegistry.h"
#include "platform/Regional.h"
#include "platform/ReportGrid.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QSplitter>
#include <QStringList>
#include <QTabWidget>
#include <QVBoxLayout>

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

QLabel* plainLabel(const QString& name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

PatientDesk::PatientDesk(const PatientData& patient, const QString& doctor, QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("frmAmbulatorio"));
    setWindowTitle(patient.Cognome + QLatin1Char(' ') + patient.Nome);
    setWindowIcon(QIcon(QStringLiteral(":/desk/icons/paziente.svg")));
    column_ = new QVBoxLayout(this);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    column_->addWidget(buildHeader(patient, doctor));
    stack_ = new QSplitter(Qt::Vertical, this);
    stack_->setChildrenCollapsible(false);
    column_->addWidget(stack_, 1);
    platform::FormRegistry::add(this);
}

QWidget* PatientDesk::buildHeader(const PatientData& patient, const QString& doctor) {
    auto* header = new QFrame(this);
    header->setBackgroundRole(QPalette::Base);
    header->setAutoFillBackground(true);
    auto* grid = new QGridLayout(header);
    grid->setContentsMargins(14, 10, 14, 10);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(2);

    auto* picture = new QLabel(header);
    picture->setPixmap(windowIcon().pixmap(QSize(40, 40), devicePixelRatioF()));
    grid->addWidget(picture, 0, 0, 2, 1);

    QLabel* name = plainLabel(QStringLiteral("laNome"), windowTitle(), header);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    name->setFont(large);
    grid->addWidget(name, 0, 1, 1, 4);

    grid->addWidget(plainLabel(QStringLiteral("laNascita"), birthText(patient), header), 1, 1);
    const QString code = QStringLiteral("Codice fiscale: ") + patient.codicefiscale;
    grid->addWidget(plainLabel(QStringLiteral("laCodiceFiscale"), code, header), 1, 2);
    const QString doctorText = QStringLiteral("Medico: ") + (doctor.isEmpty() ? QStringLiteral("nessuno") : doctor);
    grid->addWidget(plainLabel(QStringLiteral("laMedico"), doctorText, header), 1, 3);
    const QString telephone = patient.telefono.isEmpty() ? QString() : QStringLiteral("Tel. ") + patient.telefono;
    grid->addWidget(plainLabel(QStringLiteral("laTelefono"), telephone, header), 1, 4);
    grid->setColumnStretch(5, 1);
    return header;
}

void PatientDesk::addPanels(const QList<Panel>& panels, host::Framework& framework) {
    if (panels.isEmpty()) return;
    auto* splitter = new QSplitter(stack_);
    splitter->setChildrenCollapsible(false);
    QList<Panel> left;
    QList<Panel> right;
    for (const Panel& panel : panels)
        (panel.onTheRight ? right : left).append(panel);
    addSide(left, framework, *splitter);
    addSide(right, framework, *splitter);
    stack_->insertWidget(0, splitter);
    stack_->setStretchFactor(0, 3);
    refreshPanels();
}

void PatientDesk::addRooms(ClinicalRooms* rooms) {
    rooms_ = rooms;
    stack_->addWidget(rooms);
    stack_->setStretchFactor(stack_->indexOf(rooms), 2);
    sides_.append(rooms);
}

void PatientDesk::addSide(const QList<Panel>& panels, host::Framework& framework, QSplitter& splitter) {
    if (panels.isEmpty()) return;
    auto* tabs = new QTabWidget(&splitter);
    tabs->setObjectName(QStringLiteral("schede(%1)").arg(sides_.size()));
    tabs->setDocumentMode(true);
    for (const Panel& panel : panels) {
        auto* page = new PanelPage(panel, framework, tabs);
        connect(page, &PanelPage::failed, this, &PatientDesk::failed);
        tabs->addTab(page, panel.caption());
        pages_.append(page);
    }
    splitter.addWidget(tabs);
    splitter.setStretchFactor(static_cast<int>(sides_.size()), 1);
    sides_.append(tabs);
}

bool PatientDesk::hasPanel(const QString& name) const {
    for (const PanelPage* page : pages_)
        if (page->panel().name == name) return true;
    return false;
}

void PatientDesk::refreshPanels() {
    for (PanelPage* page : std::as_const(pages_)) {
        const platform::ReportRecord* focused = page->grid().focusedRecord();
        page->refresh(focused ? focused->tag : QString());
    }
    if (rooms_) rooms_->refresh();
}

QStringList PatientDesk::activePanels() const {
    QStringList captions;
    for (const QTabWidget* tabs : sides_)
        captions.append(tabs->tabText(tabs->currentIndex()));
    return captions;
}

void PatientDesk::activatePanel(const QString& caption) {
    for (QTabWidget* tabs : std::as_const(sides_))
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->tabText(i) == caption) tabs->setCurrentIndex(i);
}

void PatientDesk::closeEvent(QCloseEvent* event) {
    event->ignore();
    emit closeRequested();
}

} // namespace desk
