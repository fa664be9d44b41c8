#pragma once

#include "store/PlainRowView.h"

/// The patient's panel "Corvala: Lista Sondaggi".
class clsViewSondaggi : public PlainRowView {
public:
    using PlainRowView::PlainRowView;
    qint32 TipoRecord() const override { return 101018; }
};
