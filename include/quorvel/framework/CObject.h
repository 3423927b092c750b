// Root of the persistent and dynamically creatable classes.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include <quorvel/exportar.h>

class CArchive;
class CObject;

namespace efv {
class TablaRegistro;
}

/// What is known of a class at run time. One constant object a class, alive as long as the program.
struct EFV_API CRuntimeClass {
    std::string_view m_szClassName;             ///< name in documents, ASCII
    const CRuntimeClass* m_pBaseClass;          ///< none for CObject
    std::unique_ptr<CObject> (*m_pfnCreate)();  ///< none when the class can't be created by name
    int m_nSchema = 0;  ///< always 0: a record writes its own schema number as its first item
    const efv::TablaRegistro* m_pTabla = nullptr;  ///< a record's fields; none for every other class

    /// A new object of the class; empty when the class can't be created dynamically.
    std::unique_ptr<CObject> CreateObject() const;

    /// True for `base` itself and for every class derived from it.
    bool IsDerivedFrom(const CRuntimeClass& base) const;

    /// The registered class of that name, case-sensitive; null when there is none.
    static const CRuntimeClass* FromName(std::string_view nombre);

    /// The registered classes, in the order of their registration.
    static std::span<const CRuntimeClass* const> Registradas();
};

class EFV_API CObject {
public:
    CObject() = default;
    CObject(const CObject&) = default;
    CObject(CObject&&) = default;
    CObject& operator=(const CObject&) = default;
    CObject& operator=(CObject&&) = default;

    virtual const CRuntimeClass& GetRuntimeClass() const;
    virtual ~CObject();

    /// Reads or writes the object's items, as the archive is open; here it has none.
    virtual void Serialize(CArchive& ar);

    bool IsKindOf(const CRuntimeClass& clase) const;

    static const CRuntimeClass& GetThisClass();
};
