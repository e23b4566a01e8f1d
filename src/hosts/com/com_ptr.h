#pragma once
// Owning pointer to a COM interface: AddRef on copy, Release on reset and destruction.

#include <windows.h>
#include <objbase.h>

#include <utility>

namespace quillet::hosts::com {

template <class T>
class ComPtr {
public:
    ComPtr() = default;
    // Takes a reference of its own on p.
    explicit ComPtr(T* p) : p_(p) {
        if (p_) p_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.p_) {}
    ComPtr(ComPtr&& other) noexcept : p_(std::exchange(other.p_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(p_, other.p_);
        return *this;
    }
    ~ComPtr() { reset(); }

    // Adopts a reference the caller already owns (an out parameter's result).
    static ComPtr attach(T* p) {
        ComPtr result;
        result.p_ = p;
        return result;
    }
    T* detach() { return std::exchange(p_, nullptr); }

    void reset() {
        if (T* p = std::exchange(p_, nullptr)) p->Release();
    }
    T* get() const { return p_; }
    T* operator->() const { return p_; }
    explicit operator bool() const { return p_ != nullptr; }
    // For an out parameter: releases what is held first.
    T** put() {
        reset();
        return &p_;
    }

    template <class U>
    ComPtr<U> as(REFIID iid) const {
        ComPtr<U> result;
        if (p_) p_->QueryInterface(iid, reinterpret_cast<void**>(result.put()));
        return result;
    }

private:
    T* p_ = nullptr;
};

}  // namespace quillet::hosts::com
