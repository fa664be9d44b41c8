#pragma once

#include "host/clsViewBase.h"

class clsGestoreRighe;

/// A panel that lists records by what their rows tell: number, date and description. It offers no commands while the
/// records have no window.
class clsViewRighe : public clsViewBase {
public:
    explicit clsViewRighe(clsGestoreRighe& gestore)
        : gestore_(gestore) {}

protected:
    void costruisciColonne(platform::ReportGrid& grid) override;
    void riempi(platform::ReportGrid& grid) override;

private:
    clsGestoreRighe& gestore_;
};
