#include "desk_scenario/SampleWindow.h"

#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/ReportGrid.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

using platform::form::named;

SampleWindow::SampleWindow(const QString& name, QWidget* parent)
    : QDialog(parent) {
    setObjectName(name);
    setWindowTitle(QStringLiteral("Finestra di prova"));
    new QVBoxLayout(this);
    addFields();
    addButtons();
    addLists();
    addGrid();
    auto* key = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(key, &QShortcut::activated, this, [this] { hear(QStringLiteral("F3")); });
}

QLineEdit* SampleWindow::field(int index) const {
    return findChild<QLineEdit*>(QStringLiteral("tbDati(%1)").arg(index));
}

void SampleWindow::addFields() {
    for (int index = 0; index < 3; ++index) {
        auto* text = named(new QLineEdit(this), QStringLiteral("tbDati(%1)").arg(index));
        connect(text, &QLineEdit::editingFinished, this,
                [this, text] { hear(text->objectName() + u'=' + text->text()); });
        layout()->addWidget(text);
    }
    field(1)->setEnabled(false);
    field(2)->setReadOnly(true);
    layout()->addWidget(named(new QPlainTextEdit(this), QStringLiteral("tbNote")));
    auto* date = named(new QDateEdit(QDate(2020, 1, 1), this), QStringLiteral("dtpData"));
    date->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    connect(date, &QDateEdit::editingFinished, this, [this, date] { hear(QStringLiteral("data ") + date->text()); });
    layout()->addWidget(date);
}

void SampleWindow::addButtons() {
    auto* confirm = named(new QPushButton(QStringLiteral("&Conferma"), this), QStringLiteral("cbConferma"));
    confirm->setAutoDefault(false);
    connect(confirm, &QPushButton::clicked, this, &QDialog::accept);
    auto* late = named(new QPushButton(QStringLiteral("Più tardi"), this), QStringLiteral("cbTardi"));
    late->setAutoDefault(false);
    auto* timer = new QTimer(this);
    timer->setSingleShot(true);
    timer->setInterval(80);
    connect(timer, &QTimer::timeout, this, [this] { field(0)->setText(QStringLiteral("tardi")); });
    connect(late, &QPushButton::clicked, timer, qOverload<>(&QTimer::start));
    // As a handler of the press that postpones its work, and what the release then meets.
    auto* press = named(new QPushButton(QStringLiteral("Premuto"), this), QStringLiteral("cbPremuto"));
    press->setAutoDefault(false);
    connect(press, &QPushButton::pressed, this,
            [this] { QTimer::singleShot(0, this, [this] { hear(QStringLiteral("prima del rilascio")); }); });
    connect(press, &QPushButton::released, this, [this] { hear(QStringLiteral("rilascio")); });
    layout()->addWidget(press);
    auto* picture = named(new QLabel(QStringLiteral("dente"), this), QStringLiteral("imDente"));
    picture->installEventFilter(this);
    for (QWidget* control : std::initializer_list<QWidget*>{
             confirm, late, picture, named(new QCheckBox(QStringLiteral("Sempre"), this), QStringLiteral("ckSempre")),
             named(new QRadioButton(QStringLiteral("Uno"), this), QStringLiteral("optUno")),
             named(new QRadioButton(QStringLiteral("Due"), this), QStringLiteral("optDue"))})
        layout()->addWidget(control);
}

void SampleWindow::addLists() {
    auto* combo = named(new QComboBox(this), QStringLiteral("cmbIva"));
    combo->addItems({QStringLiteral("Esente"), QStringLiteral("22%")});
    connect(combo, &QComboBox::activated, this, [this](int index) { hear(QStringLiteral("iva %1").arg(index)); });
    auto* list = named(new QListWidget(this), QStringLiteral("lstVoci"));
    list->addItems({QStringLiteral("prima"), QStringLiteral("seconda")});
    auto* tree = named(new QTreeWidget(this), QStringLiteral("tvRaggruppamenti"));
    auto* root = new QTreeWidgetItem(tree, {QStringLiteral("Conservativa")});
    new QTreeWidgetItem(root, {QStringLiteral("Otturazioni")});
    auto* tabs = named(new QTabWidget(this), QStringLiteral("tabPagine"));
    tabs->addTab(named(new QLineEdit, QStringLiteral("tbPrima")), QStringLiteral("&Righi"));
    tabs->addTab(named(new QLineEdit, QStringLiteral("tbSeconda")), QStringLiteral("Note"));
    for (QWidget* control : std::initializer_list<QWidget*>{combo, list, tree, tabs})
        layout()->addWidget(control);
}

void SampleWindow::addGrid() {
    grid_ = named(new platform::ReportGrid(this), QStringLiteral("rcRighi"));
    grid_->addColumn({.caption = QString(), .width = 20});
    grid_->addColumn({.caption = QStringLiteral("Servizio"), .width = 120, .editable = true});
    grid_->addColumn({.caption = QStringLiteral("Fuori"), .width = 60, .editable = true});
    grid_->setEditMode(true, true);
    for (int row = 0; row < 3; ++row) {
        platform::ReportRecord* record = grid_->addRecord();
        record->cell(0).value = QStringLiteral("%1").arg(row + 1, 2, 10, QLatin1Char('0'));
        record->cell(0).changeStyle().editable = false;
        record->cell(1).value = QStringLiteral("VISITA");
        record->cell(2).setCheckBox(false);
    }
    grid_->populate();
    connect(grid_, &platform::ReportGrid::rowDoubleClicked, this, [this](platform::ReportRecord* record, int column) {
        hear(QStringLiteral("doppio %1 %2").arg(record->cell(0).value).arg(column));
    });
    connect(grid_, &platform::ReportGrid::rowRightClicked, this, [this](platform::ReportRecord* record, int) {
        const int chosen =
            platform::dialogs().popup({{QStringLiteral("Modifica")}, {QStringLiteral("Elimina"), false}});
        hear(QStringLiteral("menu %1 %2").arg(record ? record->cell(0).value : QStringLiteral("-")).arg(chosen));
    });
    layout()->addWidget(grid_);
}

bool SampleWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        const bool isRight = static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
        hear(watched->objectName() + (isRight ? QStringLiteral(" destro") : QStringLiteral(" sinistro")));
    }
    if (event->type() == QEvent::MouseButtonDblClick) hear(watched->objectName() + QStringLiteral(" doppio"));
    return QDialog::eventFilter(watched, event);
}
