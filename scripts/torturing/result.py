"""What a row has found."""

import dataclasses


@dataclasses.dataclass
class Result:
    """`figure` is what stands in the table: how often something was done, and the worst that came of it."""

    held: bool
    figure: str
