#include "desk/people/PasswordHash.h"

#include <sodium.h>
#include <stdexcept>

namespace desk {

namespace {

/// The same password typed on another keyboard may come in another composition.
QByteArray bytesOf(const QString& password) {
    return password.normalized(QString::NormalizationForm_C).toUtf8();
}

void startLibrary() {
    // Safe to call again; fails only where the system has no source of random numbers.
    if (sodium_init() < 0) throw std::runtime_error("Le password non possono essere protette su questo computer.");
}

unsigned long long lengthOf(const QByteArray& bytes) {
    return static_cast<unsigned long long>(bytes.size());
}

} // namespace

QString hashPassword(const QString& password) {
    startLibrary();
    QByteArray bytes = bytesOf(password);
    char hash[crypto_pwhash_STRBYTES];
    const int failed = crypto_pwhash_str(hash, bytes.constData(), lengthOf(bytes), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                                         crypto_pwhash_MEMLIMIT_INTERACTIVE);
    sodium_memzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    if (failed) throw std::runtime_error("La memoria non basta per proteggere la password.");
    return QString::fromLatin1(hash);
}

bool verifyPassword(const QString& hash, const QString& password) {
    startLibrary();
    QByteArray bytes = bytesOf(password);
    const QByteArray stored = hash.toLatin1();
    const int failed = crypto_pwhash_str_verify(stored.constData(), bytes.constData(), lengthOf(bytes));
    sodium_memzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    return failed == 0;
}

QString nobodysHash() {
    // Of random bytes that were thrown away, with the costs of hashPassword.
    return QStringLiteral(
        "$argon2id$v=19$m=65536,t=2,p=1$Ebi4bwhG+5sLo5DDOpC0dg$tVYO1UXlR69nbucy4xWzcPwsJJTKiKCFriALGW1Wcbw");
}

} // namespace desk
