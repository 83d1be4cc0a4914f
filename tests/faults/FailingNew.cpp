// SPDX-License-Identifier: MIT
#include "FailingNew.h"

#include <dlfcn.h>
#include <link.h>
#include <unwind.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

enum class Owner
{
    Other,
    Program,
    CxxLibrary,
    Ours
};

struct Code
{
    std::uintptr_t begin;
    std::uintptr_t end;
    Owner owner;
};

// Room for a few dozen segments; nothing here may ask for memory.
struct Map
{
    std::array<Code, 32> code;
    std::size_t size = 0;
};

Owner ownerOf(const char* library)
{
    if (!*library)
        return Owner::Program;
    if (std::strstr(library, "libVyFileDialogs.") || std::strstr(library, "libVyHostKernel."))
        return Owner::Ours;
    return std::strstr(library, "libstdc++") ? Owner::CxxLibrary : Owner::Other;
}

int addCode(dl_phdr_info* info, std::size_t, void* data)
{
    auto& map = *static_cast<Map*>(data);
    const Owner owner = ownerOf(info->dlpi_name);
    for (int i = 0; i < info->dlpi_phnum && owner != Owner::Other; ++i) {
        const auto& segment = info->dlpi_phdr[i];
        const std::uintptr_t begin = info->dlpi_addr + segment.p_vaddr;
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_X) && map.size < map.code.size())
            map.code[map.size++] = {begin, begin + segment.p_memsz, owner};
    }
    return 0;
}

Owner ownerOf(std::uintptr_t address)
{
    static const Map map = [] {
        Map filled{};
        dl_iterate_phdr(addCode, &filled);
        return filled;
    }();
    const auto* const end = map.code.data() + map.size;
    const auto* const found = std::find_if(map.code.data(), end, [address](const Code& each) {
        return each.begin <= address && address < each.end;
    });
    return found == end ? Owner::Other : found->owner;
}

// On behalf of whom the C++ library asks: the frame below its own, which lie below
// those of this file.
_Unwind_Reason_Code findCaller(_Unwind_Context* context, void* data)
{
    const Owner owner = ownerOf(_Unwind_GetIP(context));
    auto& found = *static_cast<Owner*>(data);
    if (owner == Owner::Program && found == Owner::Program)
        return _URC_NO_REASON;
    found = owner;
    return owner == Owner::CxxLibrary ? _URC_NO_REASON : _URC_END_OF_STACK;
}

bool isOurs(void* caller)
{
    Owner owner = ownerOf(reinterpret_cast<std::uintptr_t>(caller));
    if (owner == Owner::CxxLibrary) {
        owner = Owner::Program;
        _Unwind_Backtrace(findCaller, &owner);
    }
    return owner == Owner::Ours;
}

std::atomic<int> s_left{0}; // until the one that fails, which is the one that makes it 0
std::atomic<bool> s_failed{false};

struct Stack
{
    std::array<std::uintptr_t, 48> frames;
    std::size_t size = 0;
};
Stack s_stack;

_Unwind_Reason_Code noteFrame(_Unwind_Context* context, void*)
{
    if (s_stack.size == s_stack.frames.size())
        return _URC_END_OF_STACK;
    s_stack.frames[s_stack.size++] = _Unwind_GetIP(context);
    return _URC_NO_REASON;
}

bool fails(void* caller)
{
    if (s_left <= 0 || !isOurs(caller) || --s_left != 0)
        return false;
    s_stack.size = 0;
    _Unwind_Backtrace(noteFrame, nullptr);
    s_failed = true;
    return true;
}

void* take(std::size_t size, std::size_t alignment, void* caller)
{
    if (fails(caller))
        return nullptr;
    size = std::max<std::size_t>(size, 1);
    return alignment ? std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment)
                     : std::malloc(size);
}

void* takeOrThrow(std::size_t size, std::size_t alignment, void* caller)
{
    void* const block = take(size, alignment, caller);
    if (!block)
        throw std::bad_alloc();
    return block;
}

} // namespace

void FailingNew::arm(int number)
{
    ownerOf(std::uintptr_t(0)); // the map is drawn
    s_failed = false;
    s_left = number;
}

bool FailingNew::disarm()
{
    s_left = 0;
    return s_failed;
}

const char* FailingNew::failedAt()
{
    static std::array<char, 8192> text;
    std::size_t used = 0;
    text[0] = 0;
    for (std::size_t i = 0; i < s_stack.size && used + 256 < text.size(); ++i) {
        Dl_info info{};
        dladdr(reinterpret_cast<void*>(s_stack.frames[i]), &info);
        used += static_cast<std::size_t>(
            std::snprintf(text.data() + used, 256, "%.80s+0x%zx %.120s\n", info.dli_fname,
                          s_stack.frames[i] - reinterpret_cast<std::uintptr_t>(info.dli_fbase),
                          info.dli_sname ? info.dli_sname : ""));
    }
    return text.data();
}

// All of them, lest a sanitizer's or the C++ library's frees what these have taken.
void* operator new(std::size_t size)
{
    return takeOrThrow(size, 0, __builtin_return_address(0));
}
void* operator new[](std::size_t size)
{
    return takeOrThrow(size, 0, __builtin_return_address(0));
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return takeOrThrow(size, std::size_t(alignment), __builtin_return_address(0));
}
void* operator new[](std::size_t size, std::align_val_t alignment)
{
    return takeOrThrow(size, std::size_t(alignment), __builtin_return_address(0));
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    return take(size, 0, __builtin_return_address(0));
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept
{
    return take(size, 0, __builtin_return_address(0));
}
void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return take(size, std::size_t(alignment), __builtin_return_address(0));
}
void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept
{
    return take(size, std::size_t(alignment), __builtin_return_address(0));
}
void operator delete(void* block) noexcept
{
    std::free(block);
}
void operator delete[](void* block) noexcept
{
    std::free(block);
}
void operator delete(void* block, std::size_t) noexcept
{
    std::free(block);
}
void operator delete[](void* block, std::size_t) noexcept
{
    std::free(block);
}
void operator delete(void* block, std::align_val_t) noexcept
{
    std::free(block);
}
void operator delete[](void* block, std::align_val_t) noexcept
{
    std::free(block);
}
void operator delete(void* block, std::size_t, std::align_val_t) noexcept
{
    std::free(block);
}
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept
{
    std::free(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept
{
    std::free(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept
{
    std::free(block);
}
void operator delete(void* block, std::align_val_t, const std::nothrow_t&) noexcept
{
    std::free(block);
}
void operator delete[](void* block, std::align_val_t, const std::nothrow_t&) noexcept
{
    std::free(block);
}
