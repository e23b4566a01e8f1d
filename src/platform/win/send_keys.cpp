// Basic's SendKeys syntax turned into input events: + Shift, ^ Ctrl, % Alt before a key or a
// (group), ~ Enter, {NAME} or {NAME count} for named keys and for the signs themselves.

#include <cwctype>
#include <map>

#include "basic/strings.h"
#include "basic/variant.h"
#include "platform/win/win_platform.h"

namespace quillet::platform::win {

namespace {

const std::map<Str, WORD>& namedKeys() {
    static const std::map<Str, WORD> keys = {
        {u"BACKSPACE", VK_BACK}, {u"BS", VK_BACK},      {u"BKSP", VK_BACK},     {u"BREAK", VK_CANCEL},
        {u"CAPSLOCK", VK_CAPITAL}, {u"DELETE", VK_DELETE}, {u"DEL", VK_DELETE}, {u"DOWN", VK_DOWN},
        {u"END", VK_END},        {u"ENTER", VK_RETURN}, {u"ESC", VK_ESCAPE},    {u"HELP", VK_HELP},
        {u"HOME", VK_HOME},      {u"INSERT", VK_INSERT}, {u"INS", VK_INSERT},   {u"LEFT", VK_LEFT},
        {u"NUMLOCK", VK_NUMLOCK}, {u"PGDN", VK_NEXT},   {u"PGUP", VK_PRIOR},    {u"PRTSC", VK_SNAPSHOT},
        {u"RIGHT", VK_RIGHT},    {u"SCROLLLOCK", VK_SCROLL}, {u"TAB", VK_TAB},  {u"UP", VK_UP},
        {u"F1", VK_F1},   {u"F2", VK_F2},   {u"F3", VK_F3},   {u"F4", VK_F4},   {u"F5", VK_F5},   {u"F6", VK_F6},
        {u"F7", VK_F7},   {u"F8", VK_F8},   {u"F9", VK_F9},   {u"F10", VK_F10}, {u"F11", VK_F11}, {u"F12", VK_F12},
    };
    return keys;
}

INPUT virtualKey(WORD vk, bool up) {
    INPUT in{};
    in.type = INPUT_KEYBOARD;
    in.ki.wVk = vk;
    in.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    return in;
}

INPUT unicodeKey(wchar_t c, bool up) {
    INPUT in{};
    in.type = INPUT_KEYBOARD;
    in.ki.wScan = c;
    in.ki.dwFlags = KEYEVENTF_UNICODE | (up ? KEYEVENTF_KEYUP : 0);
    return in;
}

class KeyParser {
public:
    explicit KeyParser(const Str& keys) : keys_(keys) {}

    std::vector<INPUT> parse() {
        while (pos_ < keys_.size()) item();
        return std::move(events_);
    }

private:
    void press(WORD vk) {
        events_.push_back(virtualKey(vk, false));
        events_.push_back(virtualKey(vk, true));
    }
    void type(char16_t c) {
        // A letter or digit with a modifier goes as its key, so that ^v is Ctrl+V.
        if (!held_.empty() && c < 0x80 && std::iswalnum(c)) {
            press(static_cast<WORD>(std::towupper(c)));
            return;
        }
        events_.push_back(unicodeKey(c, false));
        events_.push_back(unicodeKey(c, true));
    }

    void item() {
        char16_t c = keys_[pos_++];
        WORD modifier = c == u'+' ? VK_SHIFT : c == u'^' ? VK_CONTROL : c == u'%' ? VK_MENU : 0;
        if (modifier) {
            events_.push_back(virtualKey(modifier, false));
            held_.push_back(modifier);
            if (pos_ < keys_.size()) {
                if (keys_[pos_] == u'(') {
                    ++pos_;
                    while (pos_ < keys_.size() && keys_[pos_] != u')') item();
                    ++pos_;
                } else {
                    item();
                }
            }
            held_.pop_back();
            events_.push_back(virtualKey(modifier, true));
            return;
        }
        if (c == u'~') return press(VK_RETURN);
        if (c == u'{') return named();
        type(c);
    }

    // {NAME} or {NAME count}; {{} {}} {+} and the like are the signs themselves.
    void named() {
        size_t close = keys_.find(u'}', pos_ + 1);
        if (close == Str::npos) throw basic::VbError::standard(basic::err::InvalidCall, u"SendKeys");
        Str inside = keys_.substr(pos_, close - pos_);
        pos_ = close + 1;
        long count = 1;
        size_t space = inside.find(u' ');
        if (space != Str::npos && space > 0) {
            count = static_cast<long>(basic::CLng(inside.substr(space + 1)));
            inside.resize(space);
        }
        if (inside.size() == 1) {
            for (long i = 0; i < count; ++i) type(inside[0]);
            return;
        }
        auto it = namedKeys().find(basic::UCase(inside));
        if (it == namedKeys().end()) throw basic::VbError::standard(basic::err::InvalidCall, u"SendKeys");
        for (long i = 0; i < count; ++i) press(it->second);
    }

    const Str& keys_;
    size_t pos_ = 0;
    std::vector<WORD> held_;
    std::vector<INPUT> events_;
};

}  // namespace

std::vector<INPUT> keyEvents(const Str& keys) { return KeyParser(keys).parse(); }

}  // namespace quillet::platform::win
