// libstdc++ exports this function but declares it in no header.
// NOLINTBEGIN(clang-diagnostic-reserved-identifier)
namespace __gnu_cxx {
void __freeres();
}  // namespace __gnu_cxx
// NOLINTEND(clang-diagnostic-reserved-identifier)

namespace {

/// The C++ run-time that is linked into this library reserves 71 kB for exceptions that are thrown
/// when memory has run out. It never frees them, so each load of the plug-in would leak 71 kB.
struct SExceptionPool {
    ~SExceptionPool() { __gnu_cxx::__freeres(); }
};

// Constructed before every other static object, so destroyed after all of them: until then an
// exception could still need the pool. The compiler reserves the priorities below 101 for itself.
[[gnu::init_priority(101)]] SExceptionPool exceptionPool;

}  // namespace
