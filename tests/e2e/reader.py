# SPDX-License-Identifier: GPL-3.0-or-later
"""The program as a screen reader has it: a tree of roles, names, states and values on the
accessibility bus. Every wait is for a state, with a generous limit; what is missing ends the test."""
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

LIMIT = 240  # seconds before a state counts as never reached
ANSWER = 120_000  # ms that a busy program may take to answer; one that has gone is known at once

heard = []  # what the program has announced: kind, role, name


def fail(what):
    print("FAILED:", what, file=sys.stderr)
    for line in outline(program()):
        print(line, file=sys.stderr)
    sys.exit(1)


def ask(question, *args):
    """Whatever is asked may have gone meanwhile."""
    try:
        return question(*args)
    except GLib.Error:
        return None


def open_bus():
    try:
        bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                      Gio.DBusCallFlags.NONE, LIMIT * 1000, None)
    except GLib.Error as error:
        sys.exit(f"FAILED: no accessibility bus: {error.message}")
    if Atspi.init() != 0:
        sys.exit("FAILED: no client of the accessibility bus")
    Atspi.set_timeout(ANSWER, 0)


def listen():
    """Keeps what is announced in `heard`. Only for a program that is on the bus already: one that
    connects at the same moment can miss that somebody listens, and then announces nothing."""
    listen.er = Atspi.EventListener.new(announced)
    for kind in ("object:property-change:accessible-name", "object:state-changed:checked"):
        ask(listen.er.register, kind)


def announced(event):
    heard.append((event.type, ask(event.source.get_role_name), ask(event.source.get_name)))


# ---- the tree -----------------------------------------------------------------------------------


def children(node):
    for index in range((ask(node.get_child_count) or 0) if node is not None else 0):
        child = ask(node.get_child_at_index, index)
        if child is not None:
            yield child


def program():
    for application in children(Atspi.get_desktop(0)):
        if "tavorno" in (ask(application.get_name) or "").lower():
            application.set_cache_mask(Atspi.Cache.NONE)
            return application
    return None


def window(title, role=None):
    """A window by a part of its title."""
    for top in children(program()):
        if title in (ask(top.get_name) or "") and role in (None, ask(top.get_role_name)):
            return top
    return None


def nodes(root):
    if root is None:
        return
    yield root
    for child in children(root):
        yield from nodes(child)


def outline(root):
    for node in nodes(root):
        yield f"{ask(node.get_role_name)}: {ask(node.get_name)}: {ask(node.get_description)}"


def named(node, name):
    return (ask(node.get_name) or "").strip().startswith(name)


# Each node costs a few calls, so a search does not enter what cannot hold what it looks for.
CLOSED = {"menu bar": ("menu item",), "tool bar": (), "list": ("list item",), "tree": ("table cell",),
          "table": ("table cell",), "combo box": ("list item",)}
MENUS = ("frame", "menu bar", "menu item", "popup menu")


def holds(container, role):
    return container in MENUS if role == "menu item" else role in CLOSED.get(container, (role,))


def find(inside, role, name=""):
    """The first one of this role whose name begins so."""
    return search(inside, role, name, True) if inside is not None else None


def search(node, role, name, entered=False):
    own = ask(node.get_role_name)
    if own == role and named(node, name):
        return node
    if not entered and not holds(own, role):
        return None
    for child in children(node):
        found = search(child, role, name)
        if found is not None:
            return found
    return None


def has(node, state):
    states = ask(node.get_state_set)
    return bool(states) and states.contains(state)


def text_of(node):
    return ask(Atspi.Text.get_text, node, 0, -1) or ""


# ---- waits --------------------------------------------------------------------------------------


def wait(what, question):
    print(what, flush=True)
    end = time.monotonic() + LIMIT
    context = GLib.MainContext.default()
    while time.monotonic() < end:
        answer = question()
        if answer:
            return answer
        while context.pending():
            context.iteration(False)
        time.sleep(0.05)
    return fail("waited for " + what)


def wait_window(title, role):
    return wait(f"{role} '{title}'", lambda: window(title, role))


def wait_gone(title):
    wait(f"the end of '{title}'", lambda: window(title) is None)


def get(inside, role, name=""):
    return wait(f"{role} '{name}'", lambda: find(inside, role, name))


# ---- hands --------------------------------------------------------------------------------------


def act(inside, role, name):
    """Does the first thing that can be done with it, once that is allowed. What opens a dialog
    answers when that is closed, so nobody waits for the answer."""
    node = get(inside, role, name)
    wait(f"{role} '{name}' to be allowed", lambda: has(node, Atspi.StateType.ENABLED))
    if not ask(Atspi.Action.get_n_actions, node):
        fail(f"nothing can be done with {role} '{name}'")
    Atspi.set_timeout(300, 0)  # without the extra time of a program that has just started
    ask(Atspi.Action.do_action, node, 0)
    Atspi.set_timeout(ANSWER, 0)


def write(node, text):
    """Makes the text of a field or of a page this one."""
    wait(f"a place for '{text[:30]}'", lambda: has(node, Atspi.StateType.EDITABLE))
    ask(Atspi.EditableText.set_text_contents, node, text)
    wait("the text there", lambda: text_of(node) == text)
