#pragma once

class Comandi;
class frmOggetti;

/// Adds the module's own commands: web page, refresh, options, information.
void registraComandiModulo(Comandi& comandi, frmOggetti& oggetti);
