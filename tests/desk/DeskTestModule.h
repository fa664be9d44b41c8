#pragma once

#include "host/contract/Forms.h"
#include "host/contract/Host.h"
#include "host/contract/PluginInterface.h"
#include "host/contract/View.h"
#include "platform/ReportGrid.h"

#include <QDialog>
#include <QStringList>
#include <functional>
#include <memory>
#include <stdexcept>

/// A small real list: the records of type "PRV" of the open patient, with commands of its own in the menu.
class DeskTestView : public host::View {
public:
    host::Host* host = nullptr;
    QStringList log;         ///< Commands with the record they were given for.
    bool confirmEdit = true; ///< The editor answers so, and renames the record.
    bool failOnRefresh = false;
    int refreshes = 0;

    void setLikePannello(bool) override {}
    qint32 TipoRecord() const override { return 1; }
    QObject* EditForm(const QString& id) override {
        auto* editor = new QDialog;
        editor->setObjectName(QStringLiteral("frmEditProva"));
        QObject::connect(editor, &QDialog::accepted, editor, [this, id] { rename(id); });
        return editor;
    }
    bool Elimina(const QString&) override { return false; }
    void RefreshPannello() override {}
    void Refresh() override {}
    void refreshGrid(QObject* object, const QString& idToSelect) override {
        if (failOnRefresh) throw host::HostError(QStringLiteral("archivio non raggiungibile"));
        ++refreshes;
        auto* grid = qobject_cast<platform::ReportGrid*>(object);
        if (grid->columnCount() == 0) grid->addColumn({.caption = QStringLiteral("Descrizione")});
        grid->clear();
        for (const host::RigaCorvala& row : host->paziente()->corvala().Lista()) {
            platform::ReportRecord* record = grid->addRecord();
            record->tag = row.ID;
            record->cell(0).value = row.descrizione;
            if (row.ID == idToSelect) grid->setFocusedRecord(record);
        }
        grid->populate();
    }
    void Popup(host::PopupBar& bar, QObject*) override {
        bar.RemoveItem(80);
        bar.RemoveItem(78);
        bar.AddItem(10081, QStringLiteral("Duplica"));
    }
    void PopupExecute(int command, QObject* object) override {
        const platform::ReportRecord* record = qobject_cast<platform::ReportGrid*>(object)->focusedRecord();
        log.append(QStringLiteral("%1:%2").arg(command).arg(record ? record->cell(0).value : QString()));
    }

private:
    void rename(const QString& id) {
        if (!confirmEdit) return;
        QString key = id;
        host->paziente()->corvala().Salva(key, {.Data = QStringLiteral("22/11/2025"),
                                                .idrif1 = QStringLiteral("2025-0001"),
                                                .descrizione = QStringLiteral("Modificato"),
                                                .t1 = QStringLiteral("PRV"),
                                                .m1 = QStringLiteral("<x/>")});
        host->Framework().setDialogCancel(false);
    }
};

/// What a DeskTestModule does and did; outlives the module.
struct DeskModuleRun {
    QStringList events;
    std::function<void(const QString& event)> whenTold; ///< What the module does by itself when it is told something.
    QString throwOn; ///< Name of the event, or "Init", that fails.
    bool terminate = false;
    DeskTestView view;
    host::Host* host = nullptr;
    bool hadPatientAtEnd = false;
};

/// A module that writes down what it is told and offers one panel.
class DeskTestModule : public host::PluginInterface {
public:
    explicit DeskTestModule(DeskModuleRun& run)
        : run_(run) {}

    void Init(host::Host* host, const QVariant&) override {
        run_.events.append(QStringLiteral("Init"));
        if (run_.throwOn == QLatin1String("Init")) throw std::runtime_error("configurazione illeggibile");
        run_.host = host;
        run_.view.host = host;
    }
    void evento(const QString& name, host::Host*, QVariantList& args) override {
        QString line = name;
        if (name == QLatin1String("form.load")) {
            auto* form = args.at(0).value<host::HostForm*>();
            line += QLatin1Char(' ') + form->Name();
            if (form->Name() == QLatin1String("frmMain")) build(*dynamic_cast<host::MainForm*>(form));
        } else if (name == QLatin1String("listapannelli")) {
            args[0] = args.at(0).toStringList() << panelName() << QStringLiteral("Prova: Senza vista");
        } else if (name == QLatin1String("arcpannelli.daiparent")) {
            line += QLatin1Char(' ') + args.at(0).toString();
            if (args.at(0).toString() == panelName()) args[2] = QVariant::fromValue<host::View*>(&run_.view);
        } else if (name == QLatin1String("mainribbonbar.returntab")) {
            args[0] = true;
        } else if (!args.isEmpty()) {
            line += QLatin1Char(' ') + args.at(0).toString();
        }
        if (name == QLatin1String("fine")) run_.hadPatientAtEnd = run_.host && run_.host->paziente();
        run_.events.append(line);
        if (run_.whenTold) run_.whenTold(line);
        if (run_.throwOn == name) throw std::runtime_error("divisione impossibile");
    }
    bool terminated() const override { return run_.terminate; }
    QString terminationReason() const override { return QStringLiteral("Config.xml non trovato"); }

    static QString panelName() { return QStringLiteral("Prova: Lista Prova"); }
    static constexpr qint32 NEW_PLAN = 70001;

private:
    void build(host::MainForm& window) {
        host::RibbonGroup* group = run_.host->Framework()
                                       .InsertRibbonTab(QStringLiteral("Odontoiatria"))
                                       ->InsertTabGroup(QStringLiteral("Piani"));
        group->InsertGroupButton({.id = NEW_PLAN,
                                  .key = QStringLiteral("CRVL0302"),
                                  .caption = QStringLiteral("Nuovo piano"),
                                  .tooltip = QStringLiteral("Apre un piano vuoto")});
        window.AddMenu(QStringLiteral("I70010"), QStringLiteral("ODONTOIATRIA"), QString());
        window.AddMenu(QStringLiteral("I70011"), QStringLiteral("Preventivi"), QStringLiteral("I70010"));
    }

    DeskModuleRun& run_;
};
