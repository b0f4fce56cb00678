/*
 * Usage: median_time <runs> <command>...
 *
 * Prints the median wall-clock time of each command's runs, in seconds, a line each. The words of a command
 * are separated by single blanks. What the commands print is thrown away; the first run of each warms up and
 * does not count. A command that cannot be started or fails ends everything, with status 1.
 */
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> wordsOf(const std::string &command)
{
    std::vector<std::string> words;
    std::istringstream stream(command);
    for (std::string word; std::getline(stream, word, ' ');)
        words.push_back(word);
    return words;
}

/* The seconds from starting the command until it has ended. */
double secondsOf(const std::string &command)
{
    std::vector<std::string> words = wordsOf(command);
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_RDWR, 0);

    pid_t process = 0;
    int status = 0;
    const auto begin = std::chrono::steady_clock::now();
    const bool ended = posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ) == 0
        && waitpid(process, &status, 0) == process;
    const std::chrono::duration<double> duration = std::chrono::steady_clock::now() - begin;
    posix_spawn_file_actions_destroy(&actions);
    if (!ended || status != 0) {
        std::cerr << "This command failed: " << command << '\n';
        std::exit(EXIT_FAILURE);
    }
    return duration.count();
}

} // namespace

int main(int argc, char *argv[])
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const int runs = arguments.empty() ? 0 : std::atoi(arguments[0].c_str());
    if (runs < 1 || arguments.size() < 2) {
        std::cerr << "Usage: median_time <runs> <command>...\n";
        return EXIT_FAILURE;
    }
    for (std::size_t number = 1; number < arguments.size(); ++number) {
        secondsOf(arguments[number]);
        std::vector<double> times;
        for (int run = 0; run < runs; ++run)
            times.push_back(secondsOf(arguments[number]));
        std::ranges::sort(times);
        const std::size_t half = times.size() / 2;
        std::cout << (times.size() % 2 == 1 ? times[half] : (times[half - 1] + times[half]) / 2) << '\n';
    }
    return EXIT_SUCCESS;
}
