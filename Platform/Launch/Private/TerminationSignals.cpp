#include "TerminationSignals.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace
{
constexpr int Signals[] = {SIGINT, SIGTERM, SIGHUP};

/** What is written into the pipe, by which a handler, which may hardly do anything, wakes the listener. */
constexpr char SignalCame = 's';
constexpr char Stop = 'x';

/** Milliseconds after which a user wonders whether the signal came. */
constexpr int Patience = 1000;

volatile std::sig_atomic_t GSignal = 0;
int GPipe[2] = {-1, -1};

void Tell(char What)
{
	const int Error = errno;
	// The pipe is never full: each signal is kept once.
	(void)!write(GPipe[1], &What, 1);
	errno = Error;
}

void Keep(int Signal)
{
	GSignal = Signal;
	Tell(SignalCame);
}

void Listen(const TFunction<void()>& OnSignal)
{
	char What = Stop;
	while (read(GPipe[0], &What, 1) == 1 && What != Stop)
	{
		OnSignal();
		pollfd Next = {GPipe[0], POLLIN, 0};
		if (poll(&Next, 1, Patience) == 0 && GSignal != 0)
		{
			std::fputs("The editor is busy, perhaps with a script, and ends when that comes back. The same signal again ends it "
					   "at once.\n",
				stderr);
		}
	}
}

void SetHandlers(void (*Handler)(int), int Flags)
{
	struct sigaction Action = {};
	Action.sa_handler = Handler;
	Action.sa_flags = Flags;
	for (const int Signal : Signals)
	{
		sigaction(Signal, &Action, nullptr);
	}
}
}

FTerminationSignals::FTerminationSignals(TFunction<void()> OnSignal)
{
	verify(pipe2(GPipe, O_CLOEXEC) == 0);
	Listener = std::thread([OnSignal = MoveTemp(OnSignal)] { Listen(OnSignal); });
	SetHandlers(&Keep, SA_RESETHAND | SA_RESTART);
}

FTerminationSignals::~FTerminationSignals()
{
	SetHandlers(SIG_DFL, 0);
	Tell(Stop);
	Listener.join();
	close(GPipe[0]);
	close(GPipe[1]);
}

int32 FTerminationSignals::Take()
{
	const int32 Signal = GSignal;
	GSignal = 0;
	return Signal;
}
