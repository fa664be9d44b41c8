#pragma once

#include <QHash>
#include <QString>
#include <optional>
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
        if (place(key)) throw DuplicateKey(key);
        if (!index_.isEmpty()) index_.insert(key.toCaseFolded(), values_.size());
        keys_.push_back(key);
        values_.push_back(std::move(value));
        if (index_.isEmpty() && values_.size() > FEW) buildIndex();
    }
    void reserve(std::size_t count) {
        values_.reserve(count);
        keys_.reserve(count);
    }
    const T* find(const QString& key) const {
        const std::optional<std::size_t> found = place(key);
        return found ? &values_[*found] : nullptr;
    }
    bool contains(const QString& key) const { return place(key).has_value(); }
    void clear() {
        values_.clear();
        keys_.clear();
        index_.clear();
    }
    std::size_t size() const { return values_.size(); }
    bool empty() const { return values_.empty(); }
    const T& operator[](std::size_t position) const { return values_[position]; }
    T& operator[](std::size_t position) { return values_[position]; }
    const T& back() const { return values_.back(); }
    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

private:
    // Most records hold a dozen rows: up to here looking at each key costs less than an index.
    static constexpr std::size_t FEW = 16;

    std::optional<std::size_t> place(const QString& key) const {
        if (!index_.isEmpty()) {
            const auto found = index_.constFind(key.toCaseFolded());
            return found == index_.cend() ? std::nullopt : std::optional(*found);
        }
        for (std::size_t i = 0; i < keys_.size(); ++i) {
            if (keys_[i].compare(key, Qt::CaseInsensitive) == 0) return i;
        }
        return std::nullopt;
    }
    void buildIndex() {
        for (std::size_t i = 0; i < keys_.size(); ++i)
            index_.insert(keys_[i].toCaseFolded(), i);
    }

    std::vector<T> values_;
    std::vector<QString> keys_;
    QHash<QString, std::size_t> index_;
};

} // namespace platform
