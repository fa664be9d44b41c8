#pragma once

#include "host/clsViewBase.h"

class PlainRowManager;

/// A panel that lists records by what their rows tell: number, date and description. It offers no commands while the
/// records have no window.
class PlainRowView : public clsViewBase {
public:
    PlainRowView(PlainRowManager& manager, qint32 recordType)
        : manager_(manager)
        , recordType_(recordType) {}

    qint32 TipoRecord() const override { return recordType_; }

protected:
    void buildColumns(platform::ReportGrid& grid) override;
    void fill(platform::ReportGrid& grid) override;

private:
    PlainRowManager& manager_;
    qint32 recordType_;
};
