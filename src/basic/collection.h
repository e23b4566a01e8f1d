#pragma once
// Basic's Collection: ordered, numbered from 1, with an optional string key compared ignoring
// case. Adding a key that is taken raises 457 and leaves the collection as it was, so the first
// one added wins; callers rely on that.

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "basic/vb_error.h"

namespace quillet::basic {

using Str = std::u16string;

// The key as the collection compares it.
Str collectionKey(const Str& key);

template <class T>
class Collection {
public:
    long Count() const { return static_cast<long>(items_.size()); }

    // Add(item[, key][, before][, after]) with before/after as 1-based positions; 0 means absent.
    void Add(T item, const std::optional<Str>& key = std::nullopt, long before = 0, long after = 0) {
        if (before != 0 && after != 0) throw VbError::standard(err::InvalidCall);
        if (before != 0 && (before < 1 || before > Count())) throw VbError::standard(err::InvalidCall);
        if (after != 0 && (after < 1 || after > Count())) throw VbError::standard(err::InvalidCall);
        Str folded;
        if (key) {
            folded = collectionKey(*key);
            if (index_.count(folded)) throw VbError::standard(err::KeyTaken);
        }
        size_t at = before ? before - 1 : after ? after : items_.size();
        items_.insert(items_.begin() + at, Entry{std::move(item), key ? std::optional<Str>(folded) : std::nullopt});
        if (at != items_.size() - 1) {
            reindex();
        } else if (key) {
            index_.emplace(folded, at);
        }
    }

    // Item(index): 1 to Count, otherwise 9.
    T& Item(long index) {
        if (index < 1 || index > Count()) throw VbError::standard(err::SubscriptOutOfRange);
        return items_[index - 1].item;
    }
    const T& Item(long index) const { return const_cast<Collection*>(this)->Item(index); }
    // Item(key): an unknown key raises 5, as Basic's Collection does.
    T& Item(const Str& key) {
        auto it = index_.find(collectionKey(key));
        if (it == index_.end()) throw VbError::standard(err::InvalidCall);
        return items_[it->second].item;
    }
    const T& Item(const Str& key) const { return const_cast<Collection*>(this)->Item(key); }

    // The look-up with errors ignored that the system does everywhere.
    T* Find(const Str& key) {
        auto it = index_.find(collectionKey(key));
        return it == index_.end() ? nullptr : &items_[it->second].item;
    }
    const T* Find(const Str& key) const { return const_cast<Collection*>(this)->Find(key); }
    bool Exists(const Str& key) const { return index_.count(collectionKey(key)) != 0; }

    void Remove(long index) {
        if (index < 1 || index > Count()) throw VbError::standard(err::SubscriptOutOfRange);
        items_.erase(items_.begin() + (index - 1));
        reindex();
    }
    void Remove(const Str& key) {
        auto it = index_.find(collectionKey(key));
        if (it == index_.end()) throw VbError::standard(err::InvalidCall);
        items_.erase(items_.begin() + it->second);
        reindex();
    }
    void Clear() {
        items_.clear();
        index_.clear();
    }

    // Iteration over the items in order.
    struct Entry {
        T item;
        std::optional<Str> key;
    };
    class iterator {
    public:
        explicit iterator(typename std::vector<Entry>::iterator it) : it_(it) {}
        T& operator*() const { return it_->item; }
        T* operator->() const { return &it_->item; }
        iterator& operator++() {
            ++it_;
            return *this;
        }
        bool operator==(const iterator& o) const { return it_ == o.it_; }

    private:
        typename std::vector<Entry>::iterator it_;
    };
    class const_iterator {
    public:
        explicit const_iterator(typename std::vector<Entry>::const_iterator it) : it_(it) {}
        const T& operator*() const { return it_->item; }
        const T* operator->() const { return &it_->item; }
        const_iterator& operator++() {
            ++it_;
            return *this;
        }
        bool operator==(const const_iterator& o) const { return it_ == o.it_; }

    private:
        typename std::vector<Entry>::const_iterator it_;
    };
    iterator begin() { return iterator(items_.begin()); }
    iterator end() { return iterator(items_.end()); }
    const_iterator begin() const { return const_iterator(items_.begin()); }
    const_iterator end() const { return const_iterator(items_.end()); }

private:
    void reindex() {
        index_.clear();
        for (size_t i = 0; i < items_.size(); ++i)
            if (items_[i].key) index_.emplace(*items_[i].key, i);
    }

    std::vector<Entry> items_;
    std::unordered_map<Str, size_t> index_;
};

}  // namespace quillet::basic
