#pragma once

#include "platform/XmlDocument.h"

#include <QString>

/// Graphical.xml: which picture stands for which tooth, situation and service, and where. One object for the whole
/// module, owned by its assembly. Every lookup walks the document and compares ids exactly; it answers false, with
/// empty results, while no file is loaded. Image paths come back with "[app.path]" replaced by the folder of the
/// module.
class clsGraphical {
public:
    /// Picture of a service on a tooth, with its offset inside the tooth's box in twips.
    bool ImmagineServizio(const QString& tooth, const QString& service, qint16& left, qint16& top,
                          QString& image) const;
    bool SituazioneDente(const QString& tooth, const QString& situation, QString& image) const;
    bool ImmagineInEvidenza(const QString& service, QString& image) const;
    bool ImmagineAllOcchio(const QString& service, qint16& index, QString& image) const; ///< Place 0 to 11.
    /// Status mark of a service in "RED", "YELLOW" or "GREEN", in any case.
    bool ServizioConStatus(const QString& service, const QString& colour, QString& image) const;

    QString LastError() const { return lastError_; }
    bool Init(const QString& file); ///< False, with the text in `LastError`, when the file does not load.

private:
    platform::XmlNode toothNode(const QString& id) const;

    platform::XmlDocument document_;
    QString lastError_;
};
