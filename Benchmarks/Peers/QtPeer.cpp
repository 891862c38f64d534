// What Qt 6 does with the forms that the editor's benchmarks open, off-screen.
//
// usage: QtPeer FORMS_DIR [flags of Google Benchmark]
//        QtPeer --open FORM.ui      opens one window and prints what the process has used by its first painted frame, as JSON

#include <QtUiTools/QUiLoader>
#include <QtWidgets/QtWidgets>

#include <benchmark/benchmark.h>

#include <ctime>

namespace
{
const QSize WindowSize(1280, 800);
QDir Forms;

/** Lets events pass until the window has painted once. */
class FirstPaint final : public QObject
{
public:
	explicit FirstPaint(QWidget& Window)
	{
		Window.resize(WindowSize);
		Window.installEventFilter(this);
		Window.show();
		while (!bPainted)
		{
			QCoreApplication::processEvents();
		}
		// What the paint has posted belongs to the frame.
		QCoreApplication::processEvents();
	}

private:
	bool eventFilter(QObject*, QEvent* Event) override
	{
		bPainted |= Event->type() == QEvent::Paint;
		return false;
	}

	bool bPainted = false;
};

std::unique_ptr<QWidget> Load(const QString& FileName)
{
	QFile File(FileName);
	if (!File.open(QIODevice::ReadOnly))
	{
		qFatal("%s cannot be read", qPrintable(FileName));
	}
	std::unique_ptr<QWidget> Window(QUiLoader().load(&File));
	if (!Window)
	{
		qFatal("%s is no form", qPrintable(FileName));
	}
	return Window;
}

QString FormOf(int64_t NumLeaves)
{
	return Forms.filePath(QString("Form%1.ui").arg(NumLeaves));
}

/** The same rows as in the form. */
std::unique_ptr<QWidget> Make(int64_t NumLeaves)
{
	auto Window = std::make_unique<QWidget>();
	auto* const WindowLayout = new QVBoxLayout(Window.get());
	auto* const Area = new QScrollArea;
	Area->setWidgetResizable(true);
	WindowLayout->addWidget(Area);
	auto* const Page = new QWidget;
	auto* const Rows = new QVBoxLayout(Page);
	for (int64_t Row = 0; Row < NumLeaves / 4; ++Row)
	{
		auto* const Layout = new QHBoxLayout;
		Layout->addWidget(new QLabel(QString("Setting %1").arg(Row)));
		Layout->addWidget(new QLineEdit(QString("value %1").arg(Row)), 1);
		Layout->addWidget(new QCheckBox(QString("Use it %1").arg(Row)));
		Layout->addWidget(new QPushButton(QString("Apply %1").arg(Row)));
		Rows->addLayout(Layout);
	}
	Area->setWidget(Page);
	return Window;
}

template <typename MakeWindowType>
void Open(benchmark::State& State, MakeWindowType MakeWindow)
{
	for (auto _ : State)
	{
		std::unique_ptr<QWidget> Window = MakeWindow(State.range(0));
		FirstPaint Paint(*Window);
		State.PauseTiming();
		Window.reset();
		QCoreApplication::processEvents();
		State.ResumeTiming();
	}
}

void OpenForm(benchmark::State& State)
{
	Open(State, [](int64_t NumLeaves) { return Load(FormOf(NumLeaves)); });
}

void OpenByCalls(benchmark::State& State)
{
	Open(State, &Make);
}

void RepaintWindow(benchmark::State& State)
{
	const std::unique_ptr<QWidget> Window = Load(FormOf(State.range(0)));
	FirstPaint Paint(*Window);
	QImage Picture(WindowSize, QImage::Format_RGB32);
	for (auto _ : State)
	{
		// A repaint of the window would leave out those children that fill their rectangles.
		Window->render(&Picture);
	}
}

BENCHMARK(OpenForm)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(OpenByCalls)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(RepaintWindow)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

double Seconds(clockid_t Clock)
{
	timespec Time;
	clock_gettime(Clock, &Time);
	return Time.tv_sec + Time.tv_nsec * 1e-9;
}

/** A line such as "Rss:  1234 kB" of the process's memory, in bytes. */
double ReadMemory(const QByteArray& Key)
{
	QFile File("/proc/self/smaps_rollup");
	File.open(QIODevice::ReadOnly);
	for (const QByteArray& Line : File.readAll().split('\n'))
	{
		if (Line.startsWith(Key + ':'))
		{
			return Line.mid(Key.size() + 1).simplified().split(' ').first().toDouble() * 1024.0;
		}
	}
	return 0;
}

void PrintUseUntilFirstFrame(const QString& FileName)
{
	const std::unique_ptr<QWidget> Window = Load(FileName);
	FirstPaint Paint(*Window);
	const QJsonObject Use{
		{"monotonic", Seconds(CLOCK_MONOTONIC)},
		{"cpu", Seconds(CLOCK_PROCESS_CPUTIME_ID)},
		{"rss", ReadMemory("Rss")},
		{"pss", ReadMemory("Pss")},
	};
	puts(QJsonDocument(Use).toJson(QJsonDocument::Compact).constData());
}
}

int main(int ArgumentCount, char** Arguments)
{
	qputenv("QT_QPA_PLATFORM", "offscreen");
	qputenv("QT_LOGGING_RULES", "*.warning=false");
	benchmark::Initialize(&ArgumentCount, Arguments);
	QApplication Application(ArgumentCount, Arguments);
	const QStringList Words = Application.arguments();
	if (Words.size() == 3 && Words[1] == "--open")
	{
		PrintUseUntilFirstFrame(Words[2]);
		return 0;
	}
	if (Words.size() != 2)
	{
		fprintf(stderr, "usage: QtPeer FORMS_DIR [flags of Google Benchmark] | QtPeer --open FORM.ui\n");
		return 2;
	}
	Forms.setPath(Words[1]);
	benchmark::RunSpecifiedBenchmarks();
	return 0;
}
