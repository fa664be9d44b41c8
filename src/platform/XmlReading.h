#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

class XmlReading;

/// A borrowed handle to an element of an XmlReading; valid as long as that lives and reads nothing else. A null handle
/// (`!element`) answers empty texts and nothing else.
class XmlElement {
public:
    XmlElement() = default;
    explicit operator bool() const { return reading_ != nullptr; }

    QString name() const;
    bool is(const char* name) const;
    XmlElement firstChild() const;
    XmlElement firstChild(const char* name) const;
    XmlElement nextSibling() const;
    XmlElement nextSibling(const char* name) const;
    QByteArray text() const;                                  ///< UTF-8 of the element and all below it, borrowed.
    std::optional<QString> attribute(const char* name) const; ///< Nothing when absent.
    QString attribute(const char* name, const QString& otherwise) const;
    QByteArray attributeBytes(const char* name) const; ///< UTF-8, borrowed; empty when absent.
    std::vector<QString> attributeNames() const;

private:
    friend class XmlReading;
    friend class XmlAttributes;
    XmlElement(const XmlReading* reading, int index)
        : reading_(index < 0 ? nullptr : reading)
        , index_(index) {}

    const XmlReading* reading_ = nullptr;
    int index_ = -1;
};

/// The attributes of one element, read one after the other: fastest in the order in which they were written, right in
/// any. Borrowed, like the element.
class XmlAttributes {
public:
    explicit XmlAttributes(const XmlElement& element);

    std::optional<QString> find(const char* name);
    QString text(const char* name); ///< Null when absent, as the one below.
    /// As the one above; shares the memory of `likely` when that is the text, as it often is from one row to the next.
    QString text(const char* name, const QString& likely);
    QByteArray bytes(const char* name); ///< UTF-8, borrowed; empty when absent.

private:
    int seek(const char* name); ///< -1 when absent.

    const XmlReading* reading_;
    int first_ = 0;
    int end_ = 0;
    int next_ = 0; ///< Behind the one that was read last.
};

/// A small XML text that is only read, such as the memo of a record, of which a list reads thousands: kept in a few
/// blocks instead of a tree of nodes. By the rules of XmlDocument: strict well-formedness, no network, a document type
/// declaration is refused. A text that cannot be read leaves it empty.
class XmlReading {
public:
    XmlReading() = default;
    explicit XmlReading(const QString& text);
    XmlReading(const XmlReading&) = delete;
    XmlReading& operator=(const XmlReading&) = delete;

    XmlElement root() const { return {this, elements_.empty() ? -1 : 0}; } ///< Null when there is nothing to read.

private:
    friend class XmlElement;
    friend class XmlAttributes;
    friend struct XmlEvents;

    struct Element {
        const char* name; ///< Lives in the parser's dictionary, which `names_` keeps.
        int parent;
        int firstChild;
        int nextSibling;
        int firstAttribute;
        int endAttribute;
        qsizetype text; ///< Where its text begins and ends in `texts_`.
        qsizetype textEnd;
    };
    struct Attribute {
        const char* name;
        qsizetype value; ///< Where it begins in `values_`.
        qsizetype size;
    };

    QByteArray bytes(const Attribute& attribute) const;
    const Attribute* find(int element, const char* name) const;

    std::vector<Element> elements_; ///< In the order of the text: the root first.
    std::vector<Attribute> attributes_;
    QByteArray values_;
    QByteArray texts_;
    struct Names {
        void operator()(void* dictionary) const;
    };
    std::unique_ptr<void, Names> names_;
};

} // namespace platform
