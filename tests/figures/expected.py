"""The lines that the program must print for the lines of a run."""

from shown_log import Log
from single_figures import days_figures, number_figures, person_figures, text_figures

ALONE = {"text": text_figures, "number": number_figures, "days": days_figures}


class Calculation:
    """Answers each line of a run with the lines that the program must print."""

    def __init__(self, reference, screens):
        self.reference, self.screens = reference, screens
        self.current = None

    def answer(self, case):
        kind, *fields = case.split("\t")
        if kind in ALONE:
            return ALONE[kind](*fields)
        if kind == "person":
            return person_figures(self.reference, *fields)
        if kind == "log":
            self.current = Log(self.reference, self.screens, *fields)
            return self.current.profile()
        return getattr(self.current, kind)(*fields)
