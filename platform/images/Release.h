// What a C library made is given back by that library's own function, when the pointer that owns it goes. Pure.
#pragma once

namespace Quorbel {

/// The deleter of a std::unique_ptr: calls that function.
template <auto release>
struct Release {
    template <typename T>
    void operator()(T* object) const
    {
        release(object);
    }
};

}  // namespace Quorbel
