#pragma once

/// Shows the important notes of the patient just opened, in a modal window, and returns when it is closed. Nothing
/// happens without a patient, without such a note, or where the user has turned it off. A private note is shown to the
/// patient's own doctor only.
void MostraAppuntiImportanti();
