#include "benchmarks/other_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace zentar::benchmarks {

void RunProgram(benchmark::State& state, const std::vector<std::string>& command,
                const std::string& output) {
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        // Not to /dev/null, for which grep would stop at the first line.
        const int file = open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(file, STDOUT_FILENO);
        setenv("LC_ALL", "C", 1);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0) {
        state.SkipWithError("it failed");
    }
}

}  // namespace zentar::benchmarks
