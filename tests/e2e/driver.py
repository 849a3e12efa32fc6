"""Drives the program from outside: finds things by accessibility role and name, uses mouse and keys."""

import json
import os
import subprocess
import time

import pyatspi

PATIENCE = 30  # seconds until something that must appear counts as missing


class Missing(AssertionError):
    pass


def wait_for(what, condition, patience=PATIENCE):
    """The first true answer of condition(); the tree may change under it meanwhile."""
    end = time.monotonic() + patience
    while True:
        try:
            answer = condition()
            if answer:
                return answer
        except Exception as error:  # a node that went away
            if time.monotonic() > end:
                raise Missing(f"{what}: {error}") from error
        if time.monotonic() > end:
            raise Missing(what)
        time.sleep(0.1)


def nodes(root):
    """All nodes on screen below root, in order."""
    pending = [root]
    while pending:
        node = pending.pop()
        if node is None:
            continue
        if node is not root and not node.getState().contains(pyatspi.STATE_SHOWING):
            if node.getRole() != pyatspi.ROLE_POPUP_MENU:
                continue
        yield node
        pending.extend(node.getChildAtIndex(i) for i in reversed(range(node.childCount)))


def is_active(window):
    return window.getState().contains(pyatspi.STATE_ACTIVE)


class Program:
    def __init__(self, path, stage, pictures):
        self.path, self.stage, self.pictures = path, stage, pictures
        self.process = None
        self.step = 0

    def start(self, *arguments):
        self.process = subprocess.Popen([self.path, *arguments])
        wait_for("the program's window to take the keyboard",
                 lambda: is_active(self.find("frame")))

    def root(self):
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.process.pid:
                return application
        return None

    def windows(self):
        root = self.root()
        found = [root.getChildAtIndex(i) for i in range(root.childCount)]
        return [window for window in found if window is not None and window.getState().contains(pyatspi.STATE_SHOWING)]

    def all(self, role, name=None):
        found = []
        for node in nodes(self.root()):
            if role in (None, node.getRoleName()) and name in (None, node.name):
                found.append(node)
        return found

    def find(self, role, name=None, last=False):
        found = self.all(role, name)
        return found[-1 if last else 0] if found else None

    def wait(self, role, name=None, last=False):
        return wait_for(f"{role} “{name}”", lambda: self.find(role, name, last))

    def wait_gone(self, role, name):
        wait_for(f"{role} “{name}” to go", lambda: not self.find(role, name))

    def picture(self, name):
        self.step += 1
        if self.pictures:
            time.sleep(0.4)
            file = os.path.join(self.pictures, f"{self.step:02d}-{name}.png")
            subprocess.run([self.stage, "grab", file], check=True)


def run(*arguments):
    subprocess.run(arguments, check=True)


def box_of(node):
    return node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def centre(node):
    box = box_of(node)
    return box.x + box.width // 2, box.y + box.height // 2


def settled(node):
    """Where the node is once it has stopped moving (sheets slide in)."""
    before = None
    for _ in range(50):
        now = centre(node)
        if now == before:
            break
        before = now
        time.sleep(0.08)
    return before


def click(node, *modifiers):
    x, y = settled(node)
    keys = [argument for modifier in modifiers for argument in ("keydown", modifier)]
    ups = [argument for modifier in modifiers for argument in ("keyup", modifier)]
    run("xdotool", "mousemove", str(x), str(y), *keys, "click", "1", *ups)
    time.sleep(0.15)


def click_at(x, y):
    run("xdotool", "mousemove", str(x), str(y), "click", "1")
    time.sleep(0.15)


def press(*keys):
    for key in keys:
        run("xdotool", "key", "--clearmodifiers", key)
        time.sleep(0.1)


def write(text):
    run("xdotool", "type", "--clearmodifiers", "--delay", "15", text)
    time.sleep(0.15)


def text_of(node):
    interface = node.queryText()
    return interface.getText(0, interface.characterCount)


def focused_text(program):
    """The text field that has the keyboard."""
    return next((node for node in nodes(program.root())
                 if node.getRoleName() == "text" and node.getState().contains(pyatspi.STATE_FOCUSED)), None)


def type_into(field, text):
    """Replaces a field's text. Letters that the keyboard does not have are remapped on the way, and get lost on a
    busy machine; a person would see that and type again."""
    for _ in range(5):
        press("ctrl+a")
        write(text)
        try:
            return wait_for(f"the text “{text}”", lambda: text_of(field) == text, patience=3)
        except Missing:
            continue
    raise Missing(f"the text “{text}” in “{field.name}”: {text_of(field)!r}")


def fill(program, label, text):
    """Replaces the text of a field of the inspector, as a person does."""
    field = program.wait("text", label)
    click(field)
    type_into(field, text)


def tags(path, *names):
    answer = subprocess.run(
        ["exiftool", "-json", "-G1", *[f"-{name}" for name in names], path],
        check=True, capture_output=True, text=True)
    values = json.loads(answer.stdout)[0]
    values.pop("SourceFile")
    return values


def expect(what, found, wanted):
    if found != wanted:
        raise AssertionError(f"{what}: found {found!r}, wanted {wanted!r}")
