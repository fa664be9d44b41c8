#pragma once

#include "store/modWorkspace.h"

#include <stdexcept>

/// The manager of a record type whose own contents are not read yet: it gives number, date and description of the rows,
/// which is what their lists show. It cannot save: a record written back without its memo would lose everything else.
class PlainRowManager : public WorkspaceManager<WorkspaceItem> {
public:
    using WorkspaceManager::WorkspaceManager;
    bool Salva(WorkspaceItem& item) = delete;
    void DeserializzaMEMO(WorkspaceItem&, const QString&) const override {}

protected:
    QString SerializzaMEMO(const WorkspaceItem&) const override {
        throw std::logic_error("a record without its memo cannot be written");
    }
};
