#include "base/file.h"
#include "cli/program.h"
#include "cli/system.h"

#include <cerrno>

int main(int argc, char** argv) {
  Cli::Console console{Cli::ReadInput};
  Cli::Run(Cli::Arguments(argc, argv), Cli::ProgramPlaces(), console);
  const int code = Cli::WriteTo(Cli::Stream::Out, console.out);
  if (code != 0 && code != EPIPE)
    console.Fail(Cli::Exit::NotWritten, "uscita standard: " + Base::SystemReason(code));
  Cli::WriteTo(Cli::Stream::Errors, console.err);
  return static_cast<int>(console.exit);
}
