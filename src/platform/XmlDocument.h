#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

struct _xmlDoc;
struct _xmlNode;

namespace platform {

/// Thrown by an operation on the tree that cannot be done, such as removing a node that is not a child.
class XmlError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A borrowed handle to an element of an XmlDocument; valid as long as the document lives and the node is in it. A null
/// handle (`!node`) answers empty texts and nothing else.
class XmlNode {
public:
    XmlNode() = default;
    explicit operator bool() const { return node_ != nullptr; }
    bool operator==(const XmlNode&) const = default;

    QString name() const;
    QString text() const;                                       ///< Of the element and all below it.
    QString xml() const;                                        ///< The element itself as markup.
    void setText(const QString& text) const;
    std::optional<QString> attribute(const char* name) const;   ///< Nothing when absent. ASCII names.
    QString attribute(const char* name, const QString& otherwise) const;
    bool hasAttribute(const char* name) const;
    std::vector<std::pair<QString, QString>> attributes() const; ///< Names and values, in document order.
    void setAttribute(const char* name, const QString& value) const; ///< Adds or replaces; keeps the place of an existing one.

    XmlNode parent() const;
    XmlNode firstChild() const;                                 ///< First child element.
    XmlNode firstChild(const char* name) const;
    XmlNode nextSibling() const;                                ///< Next sibling element.
    XmlNode nextSibling(const char* name) const;
    XmlNode appendChild(const char* name) const;                ///< Creates an element as the last child.
    /// Removes a direct child; throws XmlError when `child` has another parent.
    void removeChild(XmlNode& child) const;

    std::vector<XmlNode> select(const char* xpath) const;       ///< Elements, in document order; throws XmlError on a bad path.
    XmlNode selectOne(const char* xpath) const;

private:
    friend class XmlDocument;
    explicit XmlNode(_xmlNode* node) : node_(node) {}
    _xmlNode* node_ = nullptr;
};

/// One XML document over libxml2: strict well-formedness, no network, no entity expansion; a document with a document type
/// declaration is refused, and so is one with texts beyond libxml2's own limit. Move-only.
class XmlDocument {
public:
    XmlDocument();
    ~XmlDocument();
    XmlDocument(XmlDocument&&) noexcept;
    XmlDocument& operator=(XmlDocument&&) noexcept;

    bool loadText(const QString& text);  ///< False leaves the document empty; `lastError` says why.
    bool loadBytes(const QByteArray& utf8);
    bool loadFile(const QString& path); ///< By the rules of platform::files, in the encoding that it declares.
    bool isLoaded() const { return doc_ != nullptr; }
    const QString& lastError() const { return lastError_; }

    XmlNode root() const;
    /// Asks the document itself, not an element, to remove a node: only its root element is a direct child; throws
    /// XmlError for any other.
    void removeChild(XmlNode& child);
    std::vector<XmlNode> select(const char* xpath) const;
    XmlNode selectOne(const char* xpath) const;

    QByteArray toBytes() const;          ///< UTF-8 with declaration; layout as loaded.
    bool saveFile(const QString& path) const; ///< Atomic.

private:
    bool parse(const QByteArray& content, const char* encoding, int options);

    struct Free {
        void operator()(_xmlDoc* doc) const;
    };
    std::unique_ptr<_xmlDoc, Free> doc_;
    QString lastError_;
};

} // namespace platform
