// The host contract over COM, run under Wine: the editor's objects live in this apartment.

#include <windows.h>
#include <objbase.h>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    HRESULT hr = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int result = RUN_ALL_TESTS();
    if (SUCCEEDED(hr)) CoUninitialize();
    return result;
}
