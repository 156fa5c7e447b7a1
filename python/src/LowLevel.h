// The low-level layer's shared parts: how the library's value types cross
// into Python, and how Python objects refer to the library's objects.
//
// Every Python object of a value class is a Ref: a pointer to a library
// object and what keeps that object alive or tells that it is gone.
// - A copy a getter returned is owned by the Ref (shared with the views
//   into it).
// - An object of the catalog store (a component, a bundle, and what they
//   hold) is freed by the next Reset or Parse(path). Its Ref records the
//   catalog generation it was handed out in; once the generation has moved
//   on, every use raises qrmkit.StaleObjectError instead of reading freed
//   memory.
// - An object of the inventory store (a device and its applications) lives
//   as long as the process: the store only grows.
#ifndef QRMKIT_PYTHON_LOWLEVEL_H
#define QRMKIT_PYTHON_LOWLEVEL_H

#include "Module.h"

#include <QRMKit.h>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <atomic>
#include <climits>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qrmpy {

namespace py = pybind11;

// Which store a Ref points into.
enum class Store { Owned, Catalog, Inventory };

// The catalog store's generation: moved on (with the library lock held) by
// every Reset and Parse(path), whether they succeed or not.
std::uint64_t CatalogGeneration();
void NextCatalogGeneration();

struct Origin {
    std::shared_ptr<const void> owner;  // the owned copy, for Store::Owned
    Store store = Store::Owned;
    std::uint64_t generation = 0;

    // Whether the object is gone. Read with the library lock held.
    bool Stale() const { return store == Store::Catalog && generation != CatalogGeneration(); }
};

template <class T>
struct Ref {
    Origin origin;
    const T* ptr = nullptr;

    static Ref Own(T value)
    {
        auto owned = std::make_shared<const T>(std::move(value));
        Ref ref;
        ref.ptr = owned.get();
        ref.origin.owner = std::move(owned);
        return ref;
    }
    static Ref Own(std::unique_ptr<const T> value)
    {
        std::shared_ptr<const T> owned(std::move(value));
        Ref ref;
        ref.ptr = owned.get();
        ref.origin.owner = std::move(owned);
        return ref;
    }
    static Ref InStore(const T* object, Store store)
    {
        Ref ref;
        ref.ptr = object;
        ref.origin.store = store;
        ref.origin.generation = store == Store::Catalog ? CatalogGeneration() : 0;
        return ref;
    }
    // An object held by this one: it lives as long as this one does.
    template <class U>
    Ref<U> Part(const U* object) const
    {
        Ref<U> ref;
        ref.origin = origin;
        ref.ptr = object;
        return ref;
    }
};

// A Ref that becomes Python through the identity table: the same object of
// a store gives the same Python object while that one is alive.
template <class T>
struct Shared {
    Ref<T> ref;
    bool operator<(const Shared& other) const { return ref.ptr < other.ref.ptr; }
};

template <class T>
std::vector<Ref<T>> OwnAll(std::vector<T>&& values)
{
    std::vector<Ref<T>> refs;
    refs.reserve(values.size());
    for (T& value : values) {
        refs.push_back(Ref<T>::Own(std::move(value)));
    }
    return refs;
}

// Objects a store holds, as the library lists them.
template <class T>
std::vector<Shared<T>> InStoreAll(const std::vector<T*>& objects, Store store)
{
    std::vector<Shared<T>> shared;
    shared.reserve(objects.size());
    for (const T* object : objects) {
        shared.push_back(Shared<T>{Ref<T>::InStore(object, store)});
    }
    return shared;
}

template <class T, class U>
std::vector<Shared<U>> PartsOf(const Ref<T>& holder, const std::vector<U*>& parts)
{
    std::vector<Shared<U>> shared;
    shared.reserve(parts.size());
    for (const U* part : parts) {
        shared.push_back(Shared<U>{holder.template Part<U>(part)});
    }
    return shared;
}

// Bytes as Python bytes.
struct Bytes {
    std::string data;
};

// The identity table of store objects: the Python object already handed out
// for the object, if it is alive (else None), and remembering (weakly) a new
// one. GIL held.
py::object FindIdentity(const char* kind, const void* object, const Origin& origin);
void RememberIdentity(const char* kind, const void* object, const Origin& origin, const py::object& python);

// Raises qrmkit.StaleObjectError (GIL held).
[[noreturn]] void ThrowStale(const char* className);

// Runs `read` on the referenced object with the GIL released and the library
// lock held, after making sure the object still exists; the result is
// converted to Python once the lock is dropped and the GIL is back.
template <class T, class F>
auto Read(const Ref<T>& self, const char* className, F&& read) -> decltype(std::invoke(read, *self.ptr))
{
    using Result = decltype(std::invoke(read, *self.ptr));
    std::optional<Result> result;
    {
        py::gil_scoped_release released;
        LibraryLock lock;
        if (!self.origin.Stale()) {
            result.emplace(std::invoke(read, *self.ptr));
        }
    }
    if (!result) {
        ThrowStale(className);
    }
    return std::move(*result);
}

// Runs `call` with the GIL released and the library lock held.
template <class F>
auto Locked(F&& call) -> decltype(call())
{
    py::gil_scoped_release released;
    LibraryLock lock;
    return call();
}

// Only the library hands out these objects: Python can neither call the
// class nor its __new__ (an object made without a library object behind it
// would read from nowhere). The classes are final as well.
inline void RefuseInstancesFromPython(py::handle cls)
{
    reinterpret_cast<PyTypeObject*>(cls.ptr())->tp_new = nullptr;
    PyType_Modified(reinterpret_cast<PyTypeObject*>(cls.ptr()));
}

// The IntEnum classes, made once when the module is loaded.
enum class EnumKind {
    ReturnCode,
    BundleType,
    OSArchitecture,
    ComponentType,
    Criticality,
    InventoryLanguage,
    SystemIDType,
    Count
};
void DefineEnums(py::module_& module);
// The enumeration's member for the value, or the plain int for a value
// outside the enumeration. GIL held.
py::object EnumValue(EnumKind kind, int value);

void DefineValueClasses(py::module_& module);

}  // namespace qrmpy

namespace pybind11 {
namespace detail {

// VELString <-> str: the code units as UTF-16, unpaired surrogates included
// (Python holds them as lone surrogate characters).
template <>
struct type_caster<VELString> {
    PYBIND11_TYPE_CASTER(VELString, const_name("str"));

    bool load(handle source, bool)
    {
        if (!source || !PyUnicode_Check(source.ptr())) {
            return false;
        }
        PyObject* encoded = PyUnicode_AsEncodedString(source.ptr(), "utf-16-le", "surrogatepass");
        if (encoded == nullptr) {
            PyErr_Clear();
            return false;
        }
        const char* bytes = PyBytes_AS_STRING(encoded);
        std::size_t length = static_cast<std::size_t>(PyBytes_GET_SIZE(encoded)) / 2;
        std::u16string units(length, u'\0');
        for (std::size_t i = 0; i < length; ++i) {
            units[i] = static_cast<char16_t>(static_cast<unsigned char>(bytes[2 * i]) |
                                             (static_cast<unsigned char>(bytes[2 * i + 1]) << 8));
        }
        Py_DECREF(encoded);
        value = VELString(std::move(units));
        return true;
    }

    static handle cast(const VELString& text, return_value_policy, handle)
    {
        std::u16string_view units = text.GetUTF16View();
        std::string bytes(units.size() * 2, '\0');
        for (std::size_t i = 0; i < units.size(); ++i) {
            bytes[2 * i] = static_cast<char>(units[i] & 0xFF);
            bytes[2 * i + 1] = static_cast<char>(units[i] >> 8);
        }
        int order = -1;  // little-endian
        PyObject* result =
            PyUnicode_DecodeUTF16(bytes.data(), static_cast<Py_ssize_t>(bytes.size()), "surrogatepass", &order);
        if (result == nullptr) {
            throw error_already_set();
        }
        return result;
    }
};

// VELTime -> int (its count).
template <>
struct type_caster<VELTime> {
    PYBIND11_TYPE_CASTER(VELTime, const_name("int"));

    bool load(handle, bool) { return false; }

    static handle cast(const VELTime& time, return_value_policy, handle)
    {
        return PyLong_FromUnsignedLongLong(time.GetValue());
    }
};

// VELGUID -> str: its sixteen bytes in order, in hexadecimal, grouped
// 8-4-4-4-12 ("00000000-0000-0000-0000-000000000000" for the nil GUID).
template <>
struct type_caster<VELGUID> {
    PYBIND11_TYPE_CASTER(VELGUID, const_name("str"));

    bool load(handle, bool) { return false; }

    static handle cast(const VELGUID& guid, return_value_policy, handle)
    {
        static const char digits[] = "0123456789abcdef";
        std::string text;
        const VELGUID::Bytes& bytes = guid.GetBytes();
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (i == 4 || i == 6 || i == 8 || i == 10) {
                text += '-';
            }
            text += digits[bytes[i] >> 4];
            text += digits[bytes[i] & 0x0F];
        }
        return PyUnicode_FromStringAndSize(text.data(), static_cast<Py_ssize_t>(text.size()));
    }
};

template <>
struct type_caster<qrmpy::Bytes> {
    PYBIND11_TYPE_CASTER(qrmpy::Bytes, const_name("bytes"));

    bool load(handle, bool) { return false; }

    static handle cast(const qrmpy::Bytes& bytes, return_value_policy, handle)
    {
        return PyBytes_FromStringAndSize(bytes.data.data(), static_cast<Py_ssize_t>(bytes.data.size()));
    }
};

// The enumerations: an int (an IntEnum member or a plain int) in, the
// IntEnum member (or the int, for a value outside it) out.
template <class Enum, qrmpy::EnumKind Kind>
struct qrm_enum_caster {
    PYBIND11_TYPE_CASTER(Enum, const_name("int"));

    bool load(handle source, bool)
    {
        if (!source || !PyLong_Check(source.ptr())) {
            return false;
        }
        int overflow = 0;
        long number = PyLong_AsLongAndOverflow(source.ptr(), &overflow);
        if (overflow != 0 || number < INT_MIN || number > INT_MAX) {
            return false;
        }
        if (number == -1 && PyErr_Occurred()) {
            PyErr_Clear();
            return false;
        }
        value = static_cast<Enum>(static_cast<int>(number));
        return true;
    }

    static handle cast(Enum number, return_value_policy, handle)
    {
        return qrmpy::EnumValue(Kind, static_cast<int>(number)).release();
    }
};

template <>
struct type_caster<QRMKitReturnCode> : qrm_enum_caster<QRMKitReturnCode, qrmpy::EnumKind::ReturnCode> {};
template <>
struct type_caster<QRMBundleTypeEnum> : qrm_enum_caster<QRMBundleTypeEnum, qrmpy::EnumKind::BundleType> {};
template <>
struct type_caster<QRMOSArchitectureEnum> : qrm_enum_caster<QRMOSArchitectureEnum, qrmpy::EnumKind::OSArchitecture> {};
template <>
struct type_caster<QRMComponentTypeValueEnum>
    : qrm_enum_caster<QRMComponentTypeValueEnum, qrmpy::EnumKind::ComponentType> {};
template <>
struct type_caster<QRMCriticalityValueEnum> : qrm_enum_caster<QRMCriticalityValueEnum, qrmpy::EnumKind::Criticality> {};
template <>
struct type_caster<QRMInventoryLanguageEnum>
    : qrm_enum_caster<QRMInventoryLanguageEnum, qrmpy::EnumKind::InventoryLanguage> {};
template <>
struct type_caster<QRMSystemIDTypeEnum> : qrm_enum_caster<QRMSystemIDTypeEnum, qrmpy::EnumKind::SystemIDType> {};

// A store object through the identity table.
template <class T>
struct type_caster<qrmpy::Shared<T>> {
    PYBIND11_TYPE_CASTER(qrmpy::Shared<T>, make_caster<qrmpy::Ref<T>>::name);

    bool load(handle, bool) { return false; }

    static handle cast(const qrmpy::Shared<T>& shared, return_value_policy, handle)
    {
        const qrmpy::Ref<T>& ref = shared.ref;
        if (ref.origin.store == qrmpy::Store::Owned) {
            return pybind11::cast(ref).release();
        }
        object found = qrmpy::FindIdentity(typeid(T).name(), ref.ptr, ref.origin);
        if (!found.is_none()) {
            return found.release();
        }
        object made = pybind11::cast(ref);
        qrmpy::RememberIdentity(typeid(T).name(), ref.ptr, ref.origin, made);
        return made.release();
    }
};

}  // namespace detail
}  // namespace pybind11

#endif
