#!/usr/bin/perl
# A chat transcript of a Quake 3 log as HTML with game messages, the way one would write it in Perl:
#   transcript.pl <log> <transcript> <the log's name in it> <web site> [<name>=<rrggbb>...]
# The colour of a name may be empty. Colours of the page are white and black.
use strict;
use warnings;

my ($log, $transcript, $source, $site, @chosen) = @ARGV;
my @players = map { [ split /=/, $_, 2 ] } @chosen;
my @names   = map { escaped($_->[0]) } @players;
my @begin   = map { $_->[1] ne '' ? qq{<font color="$_->[1]"><b>} : '' } @players;
my @end     = map { $_->[1] ne '' ? '</b></font>' : '' } @players;
my @find    = map { $_->[0] } @players;
my $last    = $#find;

open my $in,  '<:raw', $log        or die "$log: $!";
open my $out, '>:raw', $transcript or die "$transcript: $!";

sub escaped {
    my ($text) = @_;
    $text =~ s/</&lt;/g;
    $text =~ s/>/&gt;/g;
    return $text;
}

sub put { print {$out} @_, "\r\n" }

sub put_players {
    my $list = '';
    for my $name (@names) {
        if (length($list) + length($name) + 2 >= 999) {
            put($list, '<br>');
            $list = '';
        }
        $list .= "$name, ";
    }
    put(substr($list, 0, -2), '.') if $list ne '';
}

sub put_line {
    my ($line) = @_;
    $line =~ s/\^\^0|\^[0-7]//g;
    for my $marker (' sayteam: ', ' say: ', ' vtell: ', ' tell: ') {
        my $at = index $line, $marker;
        $line = substr $line, $at + length $marker if $at >= 0;
    }
    $line = substr $line, 1 if substr($line, 0, 1) eq "\1";
    my $mark = index $line, ': ';
    if ($mark < 0) {
        put(escaped($line), '<br>') if $line ne '';
        return;
    }
    my $name = substr $line, 0, $mark;
    for my $i (0 .. $last) {
        if (index($name, $find[$i]) >= 0) {
            put($begin[$i], escaped($line), $end[$i], '<br>');
            return;
        }
    }
}

(my $address = $site) =~ s{^.*?://}{};
put('<html>');
put('<body bgcolor="ffffff" text="000000">');
put('<h3>');
put('Zentar v0.99 BETA Chat Transcript<br>');
put(qq{Web Site: <a href="$site">$address</a>});
put('</h3>');
put('<p>');
put(qq{Chat transcript of "$source".});
put('<p>');
put('The following players were chosen to be part of this transcript:<br>');
put_players();
put('<p>');
put('<b><i>START OF TRANSCRIPT</i></b>');
put('<p>');
while (my $line = <$in>) {
    my $whole = chomp $line;
    my @lines = index($line, "\r") < 0 ? ($line) : split /\r/, $line, -1;
    pop @lines if !$whole;    # has no end
    put_line($_) for @lines;
}
put('<p>');
put('<b><i>END OF TRANSCRIPT</i></b>');
put('</body>');
put('</html>');
close $out or die "$transcript: $!";
