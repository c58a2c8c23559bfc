#pragma once

#include "foundation/SInstanceCounts.h"

#include <typeinfo>

namespace Tessitor::Basics {

class CClassManager;

/// The run-time record of a class: its name, its parent's name and the count of its instances. A
/// record registers itself with the manager, which the first record creates, and withdraws when it
/// is destroyed. Names are cut to 128 bytes; a null name changes nothing.
///
/// Every class of the library owns one record, as TClassRecord.h shows. [one thread at a time]
class CClass {
public:
    CClass();  ///< without a name and not registered; still creates the manager
    explicit CClass(const char *className);
    CClass(const char *className, const char *parentClassName);
    CClass(const CClass &other);  ///< copies the name only
    /// The record of an instantiated template, named by templateClassName().
    /// @param templateName  a literal such as "TPointerDeleter<TypeName>".
    CClass(const char *templateName, const std::type_info &argument);
    CClass(const char *templateName, const std::type_info &argument, const char *parentClassName);
    CClass(const char *templateName, const std::type_info &argument, const char *parentTemplateName,
           const std::type_info &parentArgument);
    virtual ~CClass();

    CClass &operator=(const CClass &other);  ///< copies the name only
    void setClassName(const char *className);

    const char *getClassName() const { return m_className; }
    std::uint32_t getInstanceCount() const { return m_counts->instances; }
    std::uint32_t getTotalCount() const { return m_counts->total; }

    void incrementInstanceCount() { m_counts->increment(); }
    void decrementInstanceCount() { m_counts->decrement(); }

    bool operator==(const CClass &other) const;  ///< compares the names
    bool operator==(const char *className) const;

    /// @return true if the class is the target or descends from it. Ancestors are looked up by name
    ///         among the registered records, so a parent without a record ends the search.
    bool isTypeOf(const CClass &target) const;

    /// Deletes the manager. The next record that is constructed creates a new one.
    /// @param reportPath  file for a report of the classes that still have instances, overwritten
    ///                    if it exists; null for no report.
    static void destroyClassManager(const char *reportPath);

protected:
    /// Counts instances in `counts` from now on. It must outlive the record.
    void countIn(SInstanceCounts &counts) { m_counts = &counts; }

private:
    static void makeManager();
    void enrol();

    static constexpr int maximumNameLength = 128;
    static CClassManager *s_manager;

    char m_className[maximumNameLength + 1] = "UndefinedClass";
    char m_parentClassName[maximumNameLength + 1] = "UndefinedParent";
    SInstanceCounts m_ownCounts;
    SInstanceCounts *m_counts = &m_ownCounts;
};

}  // namespace Tessitor::Basics
