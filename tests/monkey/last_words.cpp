#include "tests/monkey/last_words.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace zentar::monkey {
namespace {

extern "C" void SayAndDie(int signal) {
    SayWhereabouts();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

}  // namespace

Whereabouts& Here() {
    static Whereabouts here;
    return here;
}

void SayWhereabouts() {
    const Whereabouts& here = Here();
    std::fprintf(stderr,
                 "The monkey with ZENTAR_MONKEY_SEED=%llu was at step %ld: %s, control %d.\n",
                 static_cast<unsigned long long>(here.seed), here.step, here.action, here.control);
    std::fflush(stderr);
}

void PromiseLastWords() {
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(SayWhereabouts);
#else
    std::signal(SIGSEGV, SayAndDie);
#endif
    std::signal(SIGABRT, SayAndDie);
    std::signal(SIGTERM, SayAndDie);
}

}  // namespace zentar::monkey
