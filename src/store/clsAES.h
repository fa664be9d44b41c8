#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

/// Encoding of the texts in records: Base64 of their single-byte form, which keeps them unreadable at a glance and is
/// no secret. Beside it a cipher with a key that is the same on every installation. Cheap to create, one per call.
/// Nothing here throws: bad characters are skipped, the file operations answer false.
class clsAES {
public:
    clsAES();

    QString plbEncodeStrB64(const QString& text) const;
    QString plbDecodeStrB64(const QString& text) const; ///< Skips what is not of the alphabet.

    QString EncryptStr(const QString& text) const;
    QString DecryptStr(const QString& text) const; ///< Empty when the text was not made by `EncryptStr`.
    /// False when the source cannot be read, or the target is there and must not be replaced, or cannot be written.
    bool EncryptFile(const QString& source, const QString& target, bool overwrite) const;
    bool DecryptFile(const QString& source, const QString& target, bool overwrite) const;
    /// The text in an encrypted file that was sent by mail, in MIME parts or as plain Base64; empty on failure.
    QString DecryptFileStr(const QString& source) const;
    /// The bytes of all Base64 parts of a MIME text, or of the whole text when it names no boundary.
    QString Base64DecoderStringMIME(const QString& text) const;

private:
    QByteArray encrypt(const QByteArray& data) const;
    QByteArray decrypt(const QByteArray& blocks) const;

    std::array<char, 32> key_{};
};
