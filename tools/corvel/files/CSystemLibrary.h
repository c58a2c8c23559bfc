#pragma once

namespace Tessitor::Tool {

/// A library of the system that only some commands need. It is opened at run time, since linking it
/// would make every command start later.
class CSystemLibrary {
public:
    /// Becomes a pointer to a function of the type that is asked for.
    struct SFunction {
        template <typename Function>
        operator Function *() const {
            return reinterpret_cast<Function *>(address);
        }

        void *address;
    };

    /// The library stays open: its functions may be kept.
    /// @param name     as the system's loader knows it.
    /// @param purpose  for the error: "pictures are drawn with it".
    /// @throws CJobError if it is not installed.
    CSystemLibrary(const char *name, const char *purpose);

    /// @throws CJobError if it has no such function, since it is too old.
    SFunction function(const char *functionName) const;

private:
    const char *const m_name;
    void *const m_library;
};

}  // namespace Tessitor::Tool
