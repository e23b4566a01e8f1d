#pragma once
// Answers the add-in's message boxes as a user would: a box that becomes active on this thread
// is read (its caption and text are kept) and closed with No where it has No, else Cancel,
// else OK. Without it a box under the virtual X server would wait for a user forever.

#include <windows.h>

#include <string>
#include <vector>

namespace quillet::wine {

class BoxAnswerer {
public:
    BoxAnswerer();
    ~BoxAnswerer();
    BoxAnswerer(const BoxAnswerer&) = delete;
    BoxAnswerer& operator=(const BoxAnswerer&) = delete;

    // "caption: text" of each box answered so far.
    const std::vector<std::wstring>& answered() const { return answered_; }

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam);
    void activated(HWND box);

    HHOOK hook_ = nullptr;
    std::vector<std::wstring> answered_;
};

}  // namespace quillet::wine
