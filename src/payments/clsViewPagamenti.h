#pragma once

#include "store/clsViewRighe.h"

/// The patient's panel "Corvala: Lista Pagamenti".
class clsViewPagamenti : public clsViewRighe {
public:
    using clsViewRighe::clsViewRighe;
    qint32 TipoRecord() const override { return 101015; }
};
