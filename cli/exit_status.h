#ifndef EXIT_STATUS_H
#define EXIT_STATUS_H

/// Exit status of the runner.
namespace exit_status
{

constexpr int all_right = 0;    ///< the run was played, or every statement compiles
constexpr int system_error = 1; ///< a system ended with an error, or a statement is wrong
constexpr int usage = 2;        ///< wrong use, or a file that can't be read or written

} // namespace exit_status

#endif // EXIT_STATUS_H
