#include "platform/FileHold.h"

#include <QFile>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

std::optional<mode_t>& systemsMask() {
    static std::optional<mode_t> mask;
    return mask;
}

} // namespace

FileHold::FileHold(const QString& path)
    : descriptor_(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW))
    , held_(descriptor_ >= 0 && ::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) {}

FileHold::~FileHold() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

void keepNewFilesPrivate() {
    const mode_t former = ::umask(S_IRWXG | S_IRWXO);
    if (!systemsMask()) systemsMask() = former;
}

ForOtherPrograms::ForOtherPrograms()
    : ours_(::umask(S_IRWXG | S_IRWXO)) {
    ::umask(systemsMask().value_or(static_cast<mode_t>(ours_)));
}

ForOtherPrograms::~ForOtherPrograms() {
    ::umask(static_cast<mode_t>(ours_));
}

} // namespace platform
