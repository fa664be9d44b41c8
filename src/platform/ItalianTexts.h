#pragma once

#include <QTranslator>

namespace platform {

/// Italian for the texts of the toolkit that users meet (file dialogs, standard buttons, the menus of text fields),
/// since a system may lack the toolkit's own translations. What is not listed stays as it is.
class ItalianTexts : public QTranslator {
    Q_OBJECT

public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation, int n) const override;
};

} // namespace platform
