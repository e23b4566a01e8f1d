#pragma once
// What the DLL as a whole keeps: its own handle, the count of live objects and server locks
// that DllCanUnloadNow reads, and the host application objects that the connectors share with
// the connection. This is process-wide by the nature of a COM server: one per loaded DLL.

#include <windows.h>

#include <atomic>
#include <memory>
#include <string>

#include "core/context.h"

namespace quillet::win32 {

class Module {
public:
    explicit Module(HMODULE handle) : handle_(handle), hostApps_(std::make_shared<core::HostApplications>()) {}

    HMODULE handle() const { return handle_; }
    // The full path of the DLL.
    std::wstring path() const;

    void objectCreated() { ++objects_; }
    void objectDestroyed() { --objects_; }
    void lock(bool on) { on ? ++locks_ : --locks_; }
    bool canUnload() const { return objects_ == 0 && locks_ == 0; }

    const std::shared_ptr<core::HostApplications>& hostApplications() const { return hostApps_; }

private:
    HMODULE handle_;
    std::atomic<long> objects_{0};
    std::atomic<long> locks_{0};
    std::shared_ptr<core::HostApplications> hostApps_;
};

// The module of this DLL, made when the DLL is loaded.
Module& module();

// Counts an object of the DLL for as long as it lives.
class ModuleObject {
public:
    ModuleObject() { module().objectCreated(); }
    ModuleObject(const ModuleObject&) = delete;
    ModuleObject& operator=(const ModuleObject&) = delete;
    ~ModuleObject() { module().objectDestroyed(); }
};

}  // namespace quillet::win32
