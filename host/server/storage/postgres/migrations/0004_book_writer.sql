-- Who replaced the rows last, and may append to them.
ALTER TABLE position_books ADD COLUMN writer TEXT NOT NULL DEFAULT '';
