#pragma once

#include "documents/PeriodList.h"

/// The practice-wide list of treatment plans. Owned by the host as a child window; refreshed by name through its two
/// invokable members.
class frmMDITrattamenti : public PeriodList {
    Q_OBJECT

public:
    explicit frmMDITrattamenti(QWidget* parent = nullptr);

    /// Reloads and focuses that plan; empty keeps the selected one.
    Q_INVOKABLE void RefreshTrattamenti(const QString& id);
    Q_INVOKABLE void RefreshGraficaTrattamenti(); ///< Only marks the rows of the open patient anew.
};
