#pragma once

#include "host/clsViewBase.h"

/// The plans of the open patient, as the host's panel shows them. Owned by the module's assembly.
class clsViewTrattamenti : public clsViewBase {
public:
    static constexpr qint32 TIPO_RECORD = 101014;

    qint32 TipoRecord() const override { return TIPO_RECORD; }
    QObject* EditForm(const QString& id) override;

protected:
    void costruisciColonne(platform::ReportGrid& grid) override;
    void riempi(platform::ReportGrid& grid) override;
    void adattaColonne(platform::ReportGrid& grid) override;
    void aggiungiVoci(host::PopupBar& bar, platform::ReportGrid& grid) override;
    void esegui(int command, platform::ReportGrid& grid) override;
};
