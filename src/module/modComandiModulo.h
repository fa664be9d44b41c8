#pragma once

class Commands;
class frmOggetti;

/// Adds the module's own commands: web page, refresh, options, information.
void registerModuleCommands(Commands& commands, frmOggetti& objects);
