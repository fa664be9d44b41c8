#pragma once

namespace platform {
class XmlDocument;
}

// How a working configuration learns of the commands that a newer program brings. The working copy notes which ones it
// was ever offered, so that a practice that takes one out does not find it back.

/// Adds the commands that the working copy was not offered yet, with their buttons; in a copy of the first version also
/// switches on those that were shipped off before they had a window. All else stays as the practice has it. True when
/// something changed.
bool mergeTemplate(platform::XmlDocument& working, const platform::XmlDocument& shipped);

/// Notes in a working copy that is being made which commands it holds.
void noteOfferedCommands(platform::XmlDocument& working);
