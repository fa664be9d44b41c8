#pragma once

/// Opens the window of the settings, `frmConfig`, and waits until it is closed. Does nothing without a configuration.
void openConfiguration();
