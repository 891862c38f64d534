"""What PyQt6 does with the same work, off-screen.

usage: pyqt_peer.py     prints the CPU time of each work in nanoseconds, as JSON
"""

import json
import os
import time

os.environ["QT_QPA_PLATFORM"] = "offscreen"
os.environ["QT_LOGGING_RULES"] = "*.warning=false"

from PyQt6.QtCore import QEvent, QPointF, Qt
from PyQt6.QtGui import QMouseEvent
from PyQt6.QtWidgets import QApplication, QCheckBox, QHBoxLayout, QLabel, QLineEdit, QPushButton, QScrollArea, QVBoxLayout, QWidget

ROWS = 250
SHORTEST_RUN = 0.2


class Form(QWidget):
    """The rows of Form1000."""

    def __init__(self, apply):
        super().__init__()
        self.by_name = {}
        area = QScrollArea()
        area.setWidgetResizable(True)
        QVBoxLayout(self).addWidget(area)
        page = QWidget()
        rows = QVBoxLayout(page)
        for row in range(ROWS):
            layout = QHBoxLayout()
            rows.addLayout(layout)
            for name, widget in (
                (f"Label{row}", QLabel(f"Setting {row}")),
                (f"Edit{row}", QLineEdit(f"value {row}")),
                (f"Check{row}", QCheckBox(f"Use it {row}")),
                (f"Button{row}", QPushButton(f"Apply {row}")),
            ):
                layout.addWidget(widget, 1 if name.startswith("Edit") else 0)
                self.by_name[name] = widget
            self.by_name[f"Button{row}"].clicked.connect(lambda checked, row=row: apply(row))
        area.setWidget(page)
        self.resize(1280, 800)
        self.show()
        QApplication.processEvents()


def measure(work):
    """CPU nanoseconds of one turn of work(turns)."""
    turns = 1
    while True:
        started = time.process_time()
        work(turns)
        spent = time.process_time() - started
        if spent >= SHORTEST_RUN:
            return spent / turns * 1e9
        turns = max(turns * 2, int(turns * SHORTEST_RUN * 1.2 / max(spent, 1e-6)))


def run_text(turns):
    """What an application does that is given a command as text and has no cache: compile and run."""
    variables = {}
    exec("def apply(row): pass", variables)
    for _ in range(turns):
        exec("apply(0)", variables)


def make_click_events(form):
    button = form.by_name["Button0"]
    place = QPointF(button.mapTo(form, button.rect().center()))
    on_screen = QPointF(form.mapToGlobal(place))
    nothing = Qt.KeyboardModifier.NoModifier
    left = Qt.MouseButton.LeftButton
    press = QMouseEvent(QEvent.Type.MouseButtonPress, place, on_screen, left, left, nothing)
    release = QMouseEvent(QEvent.Type.MouseButtonRelease, place, on_screen, left, Qt.MouseButton.NoButton, nothing)
    return press, release


def make_click(form):
    """From the window system's events to the end of the handler. A button of Qt would paint itself at once: updates are off."""
    press, release = make_click_events(form)
    window = form.windowHandle()

    def click(turns):
        form.setUpdatesEnabled(False)
        for _ in range(turns):
            QApplication.sendEvent(window, press)
            QApplication.sendEvent(window, release)
        form.setUpdatesEnabled(True)

    return click


def make_click_and_paint(form):
    """The same with what it paints."""
    press, release = make_click_events(form)
    window = form.windowHandle()

    def click(turns):
        for _ in range(turns):
            for event in (press, release):
                QApplication.sendEvent(window, event)
                QApplication.processEvents()

    return click


def make_set_text(form):
    label = form.by_name["Label0"]

    def set_text(turns):
        for _ in range(turns // 2 + 1):
            label.setText("Ready")
            label.setText("Working")

    return set_text


def make_set_text_by_name(form):
    widgets = form.by_name

    def set_text(turns):
        for _ in range(turns // 2 + 1):
            widgets["Label0"].setText("Ready")
            widgets["Label0"].setText("Working")

    return set_text


def main():
    application = QApplication([])
    clicks = []
    form = Form(clicks.append)
    figures = {
        "RepeatedCommand": measure(run_text),
        "ClickButton": measure(make_click(form)),
        "ClickButtonAndPaint": measure(make_click_and_paint(form)),
        "SetText": measure(make_set_text(form)),
        "SetTextByName": measure(make_set_text_by_name(form)),
    }
    assert clicks and not any(clicks), "the clicks did not reach the first button"
    print(json.dumps(figures))


if __name__ == "__main__":
    main()
