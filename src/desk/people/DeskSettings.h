#pragma once

#include <QString>
#include <optional>

namespace host {
class Items;
}

namespace desk {

/// How one user wants the desk, kept among the user's text settings. What is missing there or makes no sense stands at
/// its default. Saving throws HostError.
struct DeskSettings {
    static constexpr int normalFont = 9;
    static constexpr int largestFont = 13;

    QString startTab;             ///< Caption of a ribbon tab; empty for the first one.
    int fontSize = normalFont;    ///< Points.
    std::optional<bool> menuPane; ///< The pane with the main commands; without a choice as the module leaves it.
    bool keepPlace = true;        ///< The main window opens where it was left.

    static DeskSettings load(const host::Items& items);
    void save(host::Items& items) const;
};

} // namespace desk
