#pragma once

#include "platform/Collection.h"
#include "store/modWorkspace.h"
#include "treatments/clsItemRigoTrattamento.h"

#include <QString>

/// One treatment plan of one patient: header, notes, situation of the teeth and rows in their order. A plain value,
/// built and stored by clsTrattamenti. The three counts are never stored: the reader makes them anew on each load.
struct clsItemTrattamento : WorkspaceItem {
    QString cliente; ///< Tax code of the patient.
    QString descrizionecliente;
    QString medico; ///< Tax code of the doctor.
    QString descrizionemedico;
    QString Annotazioni;
    QString SituazioneOrale; ///< Entries "index:situation:text" joined by ";"; only the chart reads into it.
    platform::Collection<clsItemRigoTrattamento> righi; ///< Keyed by the trimmed row number.
    qint16 lavori = 0;
    qint16 lavoriaperti = 0; ///< Started and not ended.
    qint16 lavorifiniti = 0;
    QString fatturaAnticipo; ///< Reference of the advance invoice; empty when there is none.
};
