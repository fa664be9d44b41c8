#pragma once

#include "documents/DocumentView.h"

class clsViewTrattamenti;
extern clsViewTrattamenti* oViewTrattamenti; ///< As `oTrattamenti`.

/// The patient's panel "Corvala: Lista Trattamenti".
class clsViewTrattamenti : public DocumentView {
public:
    clsViewTrattamenti();
};
