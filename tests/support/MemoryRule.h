// What every public operation keeps when memory runs out, tried at each of its allocations: it happens whole
// or not at all, tells its caller as documented, leaks nothing, and succeeds when memory is back.
//
// How to use it: a struct makes the object under test, fed, in its constructor and tells in State() all that
// a host can read of it. Then a row an operation:
//
//     struct FedGraph {
//         FedGraph() { graph.AddData(0, 1, nullptr); }
//         std::string State() { return std::to_string(graph.GetDatasetSize(0)); }
//         OpenGraph graph;
//     };
//     testkit::ExpectMemoryRule<FedGraph>({
//         {"AddData", OnFailure::Reports, [](FedGraph& s) { return s.graph.AddData(0, 2, nullptr) != 0; }},
//         {"SetTitle", OnFailure::Throws, [](FedGraph& s) { return s.graph.SetTitle(kLongText), true; }},
//         {"ResetData", OnFailure::Never, [](FedGraph& s) { return s.graph.ResetData(0), true; }},
//     });
//
// An operation returns its documented result, true when it has none. Texts up to 15 characters need no
// memory: take longer ones. What the operation calls in the test (a parent's handler, say) must not make any.
// A visible top-level window costs 25 ms: let the controls share one that stays.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>

namespace testkit {

/// What a failed operation tells its caller. In every case but the first the state is as before.
enum class OnFailure {
    Never,   ///< it does not fail: removals, and what repaints at the most
    Reports, ///< a message box and the result false
    False,   ///< the result false alone
    Throws,  ///< CMemoryException*, from operations that have no result
    Message, ///< a window message: nothing leaves, the class library may show a message box
};

template <class Subject> struct MemoryOperation {
    const char* name;
    OnFailure onFailure;
    std::function<bool(Subject&)> run;
    /// What was stored before the failure stays: only that nothing else leaves, leaks or breaks is looked at.
    bool keepsPart = false;
};

/// An operation on an object of its own.
class MemoryTrial {
public:
    virtual ~MemoryTrial() = default;
    virtual bool Run() = 0;
    virtual std::string State() = 0;
};

/// Runs the operation with its first, second, third ... allocation failing, once and from then on, until it
/// passes without. Returns the number of failures.
int TryEveryAllocation(const char* name, OnFailure onFailure, bool keepsPart,
                       const std::function<std::unique_ptr<MemoryTrial>()>& make);

/// The same for all `operations`, each on a new `Subject`.
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
