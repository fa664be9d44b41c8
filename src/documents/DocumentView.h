#pragma once

#include "documents/DocumentKind.h"
#include "host/clsViewBase.h"

/// The documents of one kind of the open patient, as the host's panel shows them. Owned by the module's assembly.
class DocumentView : public clsViewBase {
public:
    explicit DocumentView(DocumentKind kind);

    qint32 TipoRecord() const override { return kind_.recordType; }
    QObject* EditForm(const QString& id) override;

protected:
    void buildColumns(platform::ReportGrid& grid) override;
    void fill(platform::ReportGrid& grid) override;
    void adaptColumns(platform::ReportGrid& grid) override;
    void addEntries(host::PopupBar& bar, platform::ReportGrid& grid) override;
    void run(int command, platform::ReportGrid& grid) override;

private:
    void removeRow(platform::ReportGrid& grid, platform::ReportRecord* record);

    DocumentKind kind_;
};
