# SPDX-License-Identifier: GPL-3.0-or-later
"""A student's first hour with the screen reader's tree as the only view: no picture, no pointer, no
key. Usage: reader_hour.py FOLDER SOLUTION: a place to save to, the solved first exercise; beside a
program that has just started."""
import sys

from reader import (Atspi, act, ask, fail, find, get, has, heard, listen, nodes, open_bus, program,
                    text_of, wait, wait_gone, wait_window, window, write)

PANEL, EDITOR, PLANT = "Simulatore PLC", "Editor AWL", "00-Marcia/arresto"


def says(inside, role, text):
    wait(f"{role} '{text}'", lambda: find(inside, role, text))


def tells(text):
    """Reads the box that stands in front, and closes it."""
    box = wait_window("Attenzione!", "alert")
    wait(f"the box '{text}'", lambda: any(
        text in (ask(part.get_name) or "") for part in nodes(box)))
    act(box, "push button", "OK")
    wait("the box's end", lambda: window("Attenzione!") != box)


def file_dialog(title, button, path):
    dialog = wait_window(title, "dialog")
    write(get(dialog, "text", "Nome del file"), path)
    act(dialog, "push button", button)
    wait_gone(title)


def line_of_caret(text):
    lines = text_of(text)[:ask(Atspi.Text.get_caret_offset, text)].split("\n")
    return len(lines) - 1


def compile_and_save(editor, path, result):
    act(editor, "menu item", "Compila Progetto")
    tells("Occorre salvare")
    file_dialog("Salva con nome", "Salva", path)
    tells("")
    says(get(editor, "status bar"), "label", result)


def checked(node):
    return has(node, Atspi.StateType.CHECKED)


def write_and_mend(panel, folder):
    act(panel, "menu item", "Nuovo Progetto")
    editor = wait_window(EDITOR, "frame")
    text = get(editor, "text", "Testo del programma principale")
    head = text_of(text)
    if "NETWORK 1" not in head:
        fail("the new text cannot be read")
    write(text, head + "LDX I0.0 //interruttore\r\n= Q0.0 //lampada\r\n")
    act(editor, "menu item", "Salva File .AWL")
    file_dialog("Salva con nome", "Salva", f"{folder}/lampada.AWL")

    compile_and_save(editor, f"{folder}/errata.AWL", "Errori: 1")
    act(editor, "menu item", "Errore successivo")
    wait("the caret on the error", lambda: line_of_caret(text) == head.count("\n"))
    write(text, text_of(text).replace("LDX", "LD"))
    compile_and_save(editor, f"{folder}/giusta.AWL", "Errori: 0")
    act(editor, "menu item", "Carica nella CPU")
    tells("")
    wait_gone(EDITOR)


def run_and_step(panel):
    # Where things are, so that not the whole tree is walked for each of them.
    front, program_list = get(panel, "filler", "CPU"), get(panel, "list", "Programma nella CPU")
    status, options = get(panel, "status bar"), get(panel, "panel", "S.P.")
    says(program_list, "list item", "Riga 2: = Q0.0")
    act(panel, "menu item", "RUN")
    says(status, "label", "RUN  -  Continuo")
    says(front, "label", "LED Q0.0 spento")
    switch = get(front, "check box", "Interruttore I0.0")
    if checked(switch):
        fail("the switch is on from the beginning")
    act(front, "check box", "Interruttore I0.0")
    wait("the switch to be on", lambda: checked(switch))
    says(front, "label", "LED I0.0 acceso")
    says(front, "label", "LED Q0.0 acceso")
    wait("the LED to be announced", lambda: any(name == "LED Q0.0 acceso" for _, _, name in heard))
    act(panel, "check box", "Valori")
    says(program_list, "list item", "Riga 1: LD I0.0; vale 1; passa corrente")
    act(panel, "check box", "Stack Operazioni Logiche")
    says(panel, "label", "Stack 0: 1")
    act(panel, "menu item", "STOP")
    says(status, "label", "STOP  -  Continuo")
    says(front, "label", "LED Q0.0 spento")

    slider = get(panel, "slider", "Potenziometro SMB28")
    ask(Atspi.Value.set_current_value, slider, 77)
    wait("the slider's value", lambda: ask(Atspi.Value.get_current_value, slider) == 77)
    says(slider.get_parent(), "label", "SMB28: 77")

    act(panel, "menu item", "Esegui in Step")
    says(status, "label", "STOP  -  Step")
    act(panel, "menu item", "RUN")
    says(status, "label", "RUN  -  Step")
    says(options, "label", "Riga da eseguire: 0")
    act(panel, "menu item", "Avanza di un passo")
    says(options, "label", "Riga da eseguire: 1")
    act(panel, "menu item", "STOP")
    says(status, "label", "STOP  -  Step")
    act(panel, "menu item", "Esegui in Continuo")
    says(status, "label", "STOP  -  Continuo")


def exercise(panel, solution):
    act(panel, "menu item", "Apri Progetto")
    file_dialog("Apri", "Apri", solution)
    editor = wait_window(EDITOR, "frame")
    act(editor, "menu item", "Carica nella CPU")
    tells("")
    wait_gone(EDITOR)
    act(panel, "menu item", "00-Marcia/Arresto")
    plant = wait_window(PLANT, "frame")
    says(plant, "label", "La CPU è in STOP")
    act(panel, "menu item", "RUN")
    says(plant, "label", "La CPU è in RUN")
    picture = get(plant, "canvas", "Figura dell'impianto")
    says(picture, "label", "Lampada verde, Q0.2: Q0.2 a 0")
    act(picture, "push button", "Start, I0.1")
    says(picture, "label", "Lampada verde, Q0.2: Q0.2 a 1")
    start = get(picture, "push button", "Start, I0.1")
    wait("Start to be let go", lambda: not has(start, Atspi.StateType.PRESSED))
    act(picture, "push button", "Stop, I0.0")
    says(picture, "label", "Lampada verde, Q0.2: Q0.2 a 0")
    act(plant, "push button", "Chiudi")
    wait_gone(PLANT)


def main():
    folder, solution = sys.argv[1:]
    open_bus()
    wait("the program", program)
    listen()
    panel = wait_window(PANEL, "frame")
    write_and_mend(panel, folder)
    run_and_step(panel)
    exercise(panel, solution)
    act(panel, "menu item", "Termina")
    wait("the end", lambda: program() is None)
    print("heard and done")


main()
