#pragma once

#include <QHash>
#include <QString>
#include <stdexcept>
#include <utility>
#include <vector>

namespace platform {

/// Thrown when a key is added twice.
class DuplicateKey : public std::runtime_error {
public:
    explicit DuplicateKey(const QString& key)
        : std::runtime_error("Chiave già presente nella raccolta: " + key.toStdString()) {}
};

/// Values in the order in which they were added, each found again by a text key. Keys ignore case, as those of the
/// records' own collections always did.
template <class T>
class Collection {
public:
    void add(const QString& key, T value) {
        const auto before = index_.size();
        std::size_t& place = index_[key.toCaseFolded()];
        if (index_.size() == before) throw DuplicateKey(key);
        place = values_.size();
        values_.push_back(std::move(value));
    }
    void reserve(std::size_t count) {
        values_.reserve(count);
        index_.reserve(static_cast<qsizetype>(count));
    }
    const T* find(const QString& key) const {
        const auto found = index_.constFind(key.toCaseFolded());
        return found == index_.cend() ? nullptr : &values_[*found];
    }
    bool contains(const QString& key) const { return index_.contains(key.toCaseFolded()); }
    void clear() {
        values_.clear();
        index_.clear();
    }
    std::size_t size() const { return values_.size(); }
    bool empty() const { return values_.empty(); }
    const T& operator[](std::size_t position) const { return values_[position]; }
    T& operator[](std::size_t position) { return values_[position]; }
    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

private:
    std::vector<T> values_;
    QHash<QString, std::size_t> index_;
};

} // namespace platform
