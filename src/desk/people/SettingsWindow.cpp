#include "desk/people/SettingsWindow.h"

#include "desk/data/Guarded.h"
#include "desk/icons/DeskIcon.h"
#include "platform/Dialogs.h"
#include "platform/FormLayout.h"
#include "platform/FormRegistry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>

namespace desk {

SettingsWindow::SettingsWindow(host::Items& items, const Desk& desk, QWidget* parent)
    : QDialog(parent)
    , items_(items)
    , menuPaneBefore_(desk.menuPane)
    , settings_(DeskSettings::load(items))
    , startTab_(platform::form::named(new QComboBox(this), QStringLiteral("cbScheda")))
    , font_(platform::form::named(new QComboBox(this), QStringLiteral("cbCarattere")))
    , menuPane_(platform::form::named(new QCheckBox(QStringLiteral("&Menu principale a sinistra"), this),
                                      QStringLiteral("ckMenu")))
    , keepPlace_(
          platform::form::named(new QCheckBox(QStringLiteral("&Ricorda posizione e misura della finestra"), this),
                                QStringLiteral("ckPosizione"))) {
    setObjectName(QStringLiteral("frmImpostazioni"));
    setWindowTitle(QStringLiteral("Impostazioni"));
    setWindowIcon(deskIcon("impostazioni"));
    auto* owner = platform::form::named(new QLabel(this), QStringLiteral("laUtente"));
    owner->setTextFormat(Qt::PlainText);
    owner->setWordWrap(true);
    owner->setText(QStringLiteral("Valgono per ") + desk.userName + QStringLiteral("."));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(1, 1);
    platform::form::labelledRow(grid, 0, 0, QStringLiteral("&Scheda iniziale:"), startTab_);
    platform::form::labelledRow(grid, 1, 0, QStringLiteral("&Carattere:"), font_);
    auto* later = new QLabel(QStringLiteral("Il carattere cambia dal prossimo avvio."), this);
    later->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(later, 2, 1);
    grid->addWidget(menuPane_, 3, 1);
    grid->addWidget(keepPlace_, 4, 1);
    QPushButton* confirm = platform::form::button(QStringLiteral("cbConferma"), QStringLiteral("Salva"), this);
    confirm->setDefault(true);
    QPushButton* cancel = platform::form::button(QStringLiteral("cbAnnulla"), QStringLiteral("Annulla"), this);
    cancel->setAutoDefault(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 14, 16, 14);
    column->setSpacing(14);
    column->addWidget(owner);
    column->addLayout(grid);
    column->addStretch();
    column->addLayout(platform::form::buttonRow({confirm, cancel}));
    resize(440, sizeHint().height());
    connect(confirm, &QPushButton::clicked, this, &SettingsWindow::save);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    fill(desk);
    platform::FormRegistry::add(this);
}

void SettingsWindow::fill(const Desk& desk) {
    startTab_->addItem(QStringLiteral("(la prima)"), QString());
    for (const QString& tab : desk.tabs)
        startTab_->addItem(tab, tab);
    // A tab whose module is not there today is not forgotten.
    if (startTab_->findData(settings_.startTab) < 0) startTab_->addItem(settings_.startTab, settings_.startTab);
    startTab_->setCurrentIndex(startTab_->findData(settings_.startTab));
    font_->addItem(QStringLiteral("Normale"), DeskSettings::normalFont);
    font_->addItem(QStringLiteral("Grande"), 11);
    font_->addItem(QStringLiteral("Molto grande"), DeskSettings::largestFont);
    font_->setCurrentIndex(qMax(0, font_->findData(settings_.fontSize)));
    menuPane_->setChecked(menuPaneBefore_);
    keepPlace_->setChecked(settings_.keepPlace);
}

void SettingsWindow::save() {
    DeskSettings wanted;
    wanted.startTab = startTab_->currentData().toString();
    wanted.fontSize = font_->currentData().toInt();
    wanted.menuPane = settings_.menuPane;
    if (menuPane_->isChecked() != menuPaneBefore_) wanted.menuPane = menuPane_->isChecked();
    wanted.keepPlace = keepPlace_->isChecked();
    const QString failure = guarded([&] { wanted.save(items_); });
    if (!failure.isEmpty()) {
        platform::dialogs().message(QStringLiteral("Le impostazioni non sono state salvate.\n") + failure,
                                    platform::MB_WARNING, windowTitle());
        return;
    }
    settings_ = wanted;
    accept();
}

} // namespace desk
