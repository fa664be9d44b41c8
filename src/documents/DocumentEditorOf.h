#pragma once

#include "documents/DocumentEditor.h"
#include "documents/DocumentHeader.h"
#include "store/modWorkspace.h"

#include <optional>
#include <utility>

/// The editor of a kind whose documents are `Item`: what lies between the fields and its manager. A kind fills its
/// fields from an item and composes a new one from them; head and patient are seen to here.
template <class Item>
class DocumentEditorOf : public DocumentEditor {
protected:
    DocumentEditorOf(WorkspaceManager<Item>& manager, const Words& words, const QString& id, QWidget* parent)
        : DocumentEditor(words, id, parent)
        , manager_(manager) {}

    virtual void fill(const Item& item) = 0;
    virtual void compose(Item& item) = 0;
    /// A kind that can tell what is wrong with a damaged record reads it here, with the rest in `fault`.
    virtual std::optional<Item> loadItem() { return manager_.Carica(id()); }

private:
    bool load() final {
        loaded_ = loadItem();
        return loaded_.has_value();
    }

    QString showLoaded() final {
        const Item item = *std::exchange(loaded_, std::nullopt);
        header().load(item);
        fill(item);
        return item.fault;
    }

    bool save() final {
        mark(0);
        Item item;
        item.ID = id();
        header().write(item);
        if (const host::Paziente* patient = currentPatient()) {
            item.cliente = patient->codicefiscale();
            item.descrizionecliente = patient->Cognome() + QLatin1Char(' ') + patient->Nome();
        }
        compose(item);
        mark(2);
        const bool isStored = item.ID.isEmpty() ? manager_.saveNew(item) : manager_.Salva(item);
        mark(isStored ? 3 : 4);
        if (!isStored) return false;
        setStored(item.ID);
        header().fixNumber(item.number()); // the next one, when another workstation has taken its own meanwhile
        return true;
    }

    void forgetList() final { manager_.Refresh(); }
    QString t1() const final { return manager_.t1(); }

    WorkspaceManager<Item>& manager_;
    std::optional<Item> loaded_;
};
