#pragma once

#include <QString>

namespace platform {

/// Holds a file or a folder for its own lifetime; one that dies with its program lets go, however it dies. What nobody
/// holds is left over and may be tidied up. Advisory: it keeps nobody from the content.
class FileHold {
public:
    explicit FileHold(const QString& path);
    ~FileHold();
    FileHold(const FileHold&) = delete;
    FileHold& operator=(const FileHold&) = delete;

    bool held() const { return held_; } ///< False when somebody else holds it, or it is not there.

private:
    int descriptor_ = -1;
    bool held_ = false;
};

/// New files and folders of this program are their owner's alone from here on.
void keepNewFilesPrivate();

/// Starts of other programs, who make files by the habits of the user's system.
class ForOtherPrograms {
public:
    ForOtherPrograms();
    ~ForOtherPrograms();
    ForOtherPrograms(const ForOtherPrograms&) = delete;
    ForOtherPrograms& operator=(const ForOtherPrograms&) = delete;

private:
    unsigned ours_;
};

} // namespace platform
