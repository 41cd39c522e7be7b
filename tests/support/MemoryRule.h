// SPDX-License-Identifier: MIT
// The rule for operations that run out of memory, checked at each of their allocations.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

// A public operation that runs out of memory changes nothing, reports the failure as documented, leaks
// nothing, and succeeds when memory is available again.
//
// How to use it: a struct makes the object under test in its constructor and adds data. Its State() returns
// all that a host can read of the object as text. The table has a row for each operation, for example
//     {"AddData", OnFailure::Reports, [](FedGraph& s) { return s.graph.AddData(0, 2, nullptr) != 0; }}
//
// The function of a row returns the operation's documented result, or true when there is none. It must not
// allocate memory of its own, nor may handlers of the test that the operation calls. Use texts of more than
// 15 characters: shorter ones need no memory. A visible top-level window takes 25 ms, so the controls of a
// table share one.
namespace testkit {

/// How an operation reports a failed allocation. Except for Never, the state is unchanged afterwards.
enum class OnFailure {
    Never,   ///< it does not fail: removals, and operations that only repaint
    Reports, ///< a message box and the result false
    False,   ///< the result false without a message box
    Throws,  ///< CMemoryException*, for operations without a result
    Message, ///< a window message: no exception; the class library may show a message box
};

template <class Subject> struct MemoryOperation {
    const char* name;
    OnFailure onFailure;
    std::function<bool(Subject&)> run;
    /// The operation may keep what it stored before the failure. Only exceptions and leaks are checked then.
    bool keepsPart = false;
};

/// One operation and the object that it works on.
class MemoryTrial {
public:
    virtual ~MemoryTrial() = default;
    virtual bool Run() = 0;
    virtual std::string State() = 0;
};

/// Runs the operation again and again: with its first allocation failing, with its second one, and so on,
/// until no allocation fails. Does the same with all later allocations failing too. The number of failures.
int TryEveryAllocation(const char* name, OnFailure onFailure, bool keepsPart,
                       const std::function<std::unique_ptr<MemoryTrial>()>& make);

/// The same for all `operations`, each time on a new `Subject`.
template <class Subject> int ExpectMemoryRule(std::initializer_list<MemoryOperation<Subject>> operations) {
    struct Trial : MemoryTrial {
        explicit Trial(const MemoryOperation<Subject>& operation) : operation(operation) {}
        bool Run() override { return operation.run(subject); }
        std::string State() override { return subject.State(); }
        const MemoryOperation<Subject>& operation;
        Subject subject;
    };
    int failures = 0;
    for (const MemoryOperation<Subject>& each : operations)
        failures += TryEveryAllocation(each.name, each.onFailure, each.keepsPart,
                                       [&] { return std::make_unique<Trial>(each); });
    return failures;
}

} // namespace testkit
