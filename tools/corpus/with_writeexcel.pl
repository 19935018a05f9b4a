#!/usr/bin/perl
# Song files of Spreadsheet::WriteExcel. Usage: with_writeexcel.pl TARGET_FOLDER SONG
use strict;
use warnings;
use utf8;
use Spreadsheet::WriteExcel;

my ($target, $source) = @ARGV;
open my $lines, '<:encoding(UTF-8)', $source or die $source;
my @song = map { chomp; [split /\t/] } <$lines>;

sub text_of { join '', map { $song[$_ % @song][0] } 0 .. $_[0] - 1 }

sub fill {
    my ($sheet, $rows) = @_;
    for my $row (0 .. $rows - 1) {
        my $line = $song[$row % @song];
        $sheet->write_string($row, $_, $line->[$_]) for 0 .. 3;
        $sheet->write_number($row, 4, $line->[4]);
        $sheet->write_number($row, 5, $row);
    }
}

sub decorate {
    my ($book, $sheet) = @_;
    my $bold = $book->add_format(bold => 1, bg_color => 'yellow', bottom => 1);
    my $day = $book->add_format(num_format => 'd. mmmm yyyy');
    $sheet->write_blank(14, $_, $bold) for 0 .. 5;
    $sheet->write_formula(15, 0, '=A1&"!"', undef, 'Koč-!');
    $sheet->write_formula(15, 1, '=SUM(E1:E6)', $bold, 0.475);
    $sheet->merge_range(17, 0, 18, 2, 'sloučeno', $book->add_format(bold => 1));
    $sheet->write_comment(1, 1, 'poznámka ř', author => 'autor');
    $sheet->write_number(20, 0, 45000.5, $day);
    $sheet->write_url(21, 0, 'http://example.org/', 'odkaz');
    $sheet->write_string(60, 1, 'daleko');
    $sheet->set_column(0, 0, 24);
    $sheet->set_row(5, undef, $bold);
    $sheet->freeze_panes(1, 1);
    $sheet->autofilter('A1:F12');
    $sheet->data_validation('B3', { validate => 'list', source => ['c1', 'd1'] });
    $sheet->set_header('&CZpevnik');
    my $embedded = $book->add_chart(type => 'line', embedded => 1);
    $embedded->add_series(values => '=Pisen!$E$1:$E$6');
    $sheet->insert_chart('I2', $embedded);
    my $alone = $book->add_chart(type => 'column', name => 'Graf');
    $alone->add_series(values => '=Pisen!$F$1:$F$6');
    $book->define_name('Doba', '=Pisen!$E$1:$E$12');
    $book->add_worksheet('Prázdný');
}

sub write_song {
    my ($name, $rows, $decorated, @texts) = @_;
    my $properties = $name eq 'properties';
    my $book = Spreadsheet::WriteExcel->new("$target/writeexcel-$name.xls");
    $book->set_properties(title => 'Zpěvník', author => 'autor', utf8 => 1) if $properties;
    $book->compatibility_mode() if $decorated;
    my $sheet = $book->add_worksheet($decorated ? 'Pisen' : 'Píseň');
    fill($sheet, $rows);
    $sheet->write_string($_, 8, $texts[$_]) for 0 .. $#texts;
    decorate($book, $sheet) if $decorated;
    my $other = $book->add_worksheet('Druhý list');
    $other->write_string(0, 0, 'druhý');
    $other->write_number(2, 1, 2);
    $book->close or die $name;
}

write_song('plain', 12, 0);
write_song('rich', 12, 1);
write_song('properties', 60, 0); # a container of OLE::Storage_Lite
write_song('long', 12, 0, text_of(70), 'příliš žluťoučký ' x 600, 'x' x 9000, 'ř' x 4112);
write_song('rows500', 500, 0);
