#pragma once

#include "host/clsViewBase.h"

class clsViewTrattamenti;
extern clsViewTrattamenti* oViewTrattamenti; ///< As `oTrattamenti`.

/// The plans of the open patient, as the host's panel shows them. Owned by the module's assembly.
class clsViewTrattamenti : public clsViewBase {
public:
    static constexpr qint32 RECORD_TYPE = 101014;

    qint32 TipoRecord() const override { return RECORD_TYPE; }
    QObject* EditForm(const QString& id) override;

protected:
    void buildColumns(platform::ReportGrid& grid) override;
    void fill(platform::ReportGrid& grid) override;
    void adaptColumns(platform::ReportGrid& grid) override;
    void addEntries(host::PopupBar& bar, platform::ReportGrid& grid) override;
    void run(int command, platform::ReportGrid& grid) override;
};
